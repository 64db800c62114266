#include "qt/FormChildren.h"

#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include "qt/QtControlSite.h"
#include "qt/QtLabel.h"
#include "qt/QtTextBox.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo::host {
namespace {

template <class Map>
auto Find(const Map& map, const QString& name) -> decltype(map.begin()->second.get()) {
  const auto found = map.find(name);
  return found == map.end() ? nullptr : found->second.get();
}

// Hidden children made on demand stay out of the way of the designed ones.
template <class Widget>
Widget& Hidden(Widget& widget) {
  widget.hide();
  return widget;
}

}  // namespace

FormChildren::FormChildren(QWidget& form) : form_(form) {}

// The widgets belong to the form; sites and text boxes go first, while they still can
// let go of their widgets.
FormChildren::~FormChildren() {
  sites_.clear();
  textBoxes_.clear();
}

QString FormChildren::indexedName(const QString& name, int index) {
  return QStringLiteral("%1(%2)").arg(name).arg(index);
}

QWidget* FormChildren::Under(QWidget* parent) const { return parent ? parent : &form_; }

SurfaceWidget& FormChildren::addSurface(const QString& name, QWidget* parent) {
  auto* surface = new SurfaceWidget(Under(parent));
  surface->setObjectName(name);
  surface->setAccessibleName(name);
  surfaces_[name] = surface;
  return *surface;
}

QWidget& FormChildren::addHostedControl(const QString& name, QWidget* parent) {
  auto* box = new QWidget(Under(parent));
  box->setObjectName(name);
  box->setAccessibleName(name);
  hostedControls_[name] = box;
  SurfaceWidget& surface = addSurface(name, box);
  surface.setObjectName(name + QStringLiteral(".picScreen"));
  surface.move(0, 0);
  sites_[name] = std::make_unique<QtControlSite>(box);
  return *box;
}

QtLabel& FormChildren::addLabel(const QString& name, const QString& caption, QWidget* parent) {
  auto* label = new QtLabel(Under(parent));
  label->setObjectName(name);
  label->SetCaption(caption.toStdString());
  labels_[name] = label;
  return *label;
}

QtTextBox& FormChildren::addTextBox(const QString& name, QWidget* parent) {
  auto* edit = new QLineEdit(Under(parent));
  edit->setObjectName(name);
  edit->setAccessibleName(name);
  auto& box = textBoxes_[name];
  box = std::make_unique<QtTextBox>(edit);
  connect(box.get(), &QtTextBox::lostFocus, this, [this, name] { emit textBoxLeft(name); });
  return *box;
}

QPushButton& FormChildren::addButton(const QString& name, const QString& caption, QWidget* parent) {
  return AddButton(name, name, 0, caption, parent);
}

QPushButton& FormChildren::addButton(const QString& name, int index, const QString& caption, QWidget* parent) {
  return AddButton(indexedName(name, index), name, index, caption, parent);
}

QPushButton& FormChildren::AddButton(const QString& objectName, const QString& name, int index,
                                     const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, Under(parent));
  button->setObjectName(objectName);
  button->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
  buttons_[objectName] = button;
  connect(button, &QPushButton::clicked, this, [this, name, index] { emit clicked(name, index); });
  return *button;
}

SurfaceWidget& FormChildren::surface(const QString& name) {
  if (SurfaceWidget* found = findSurface(name)) return *found;
  Hidden(addHostedControl(name));
  return *findSurface(name);
}

QtControlSite& FormChildren::site(const QString& name) {
  if (QtControlSite* found = Find(sites_, name)) return *found;
  Hidden(addHostedControl(name));
  return *Find(sites_, name);
}

QtTextBox& FormChildren::textBox(const QString& name) {
  if (QtTextBox* found = Find(textBoxes_, name)) return *found;
  QtTextBox& box = addTextBox(name);
  box.lineEdit()->hide();
  return box;
}

QtLabel& FormChildren::label(const QString& name) {
  if (QtLabel* found = findLabel(name)) return *found;
  // "<control>.<label>" belongs inside the hosted control, where its position counts.
  QWidget* owner = findHostedControl(name.section(QLatin1Char('.'), 0, 0));
  return Hidden(addLabel(name, QString(), name.contains(QLatin1Char('.')) ? owner : nullptr));
}

SurfaceWidget* FormChildren::findSurface(const QString& name) const { return Find(surfaces_, name); }
QWidget* FormChildren::findHostedControl(const QString& name) const { return Find(hostedControls_, name); }
QtLabel* FormChildren::findLabel(const QString& name) const { return Find(labels_, name); }

QLineEdit* FormChildren::findLineEdit(const QString& name) const {
  const QtTextBox* box = Find(textBoxes_, name);
  return box ? box->lineEdit() : nullptr;
}

QPushButton* FormChildren::findButton(const QString& name, int index) const {
  if (QPushButton* member = Find(buttons_, indexedName(name, index))) return member;
  return index == 0 ? Find(buttons_, name) : nullptr;
}

}  // namespace LumoColorCombo::host
