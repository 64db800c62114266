#include "qt/PopupDesign.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/QtFormWindow.h"
#include "qt/QtLabel.h"
#include "qt/QtTextBox.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo::host {
namespace {

// The header labels are one control array: 0 "Current:", 1 "New:", 2 "Value:".
const QString kHeader = QStringLiteral("lblHeader");
constexpr int kCurrentHeader = 0;
constexpr int kNewHeader = 1;
constexpr int kValueHeader = 2;
constexpr int kSwatchMargin = 4;

QWidget* HexagonBox(FormChildren& children) {
  using D = PopupDesign;
  QWidget& box = children.addHostedControl(QStringLiteral("ColorHexagon1"));
  children.surface(QStringLiteral("ColorHexagon1")).setGeometry(0, 0, D::HexagonWidth, D::HexagonHeight);
  QtLabel& caption = children.addLabel(QStringLiteral("ColorHexagon1.lblOverColor"), QString(), &box);
  caption.setGeometry(0, D::HexagonHeight, D::HexagonWidth, D::CaptionHeight);
  box.setFixedSize(D::HexagonWidth, D::HexagonHeight + D::CaptionHeight);
  return &box;
}

// The frame with the new colour's swatch above the current one's, as the core lays
// them out again when the form loads.
QWidget* SwatchFrame(FormChildren& children) {
  using D = PopupDesign;
  SurfaceWidget& frame = children.addSurface(QStringLiteral("picColorBack"));
  frame.setFixedSize(D::SwatchFrameWidth, D::SwatchFrameHeight);
  const int width = D::SwatchFrameWidth - 2 * kSwatchMargin;
  const int half = (D::SwatchFrameHeight - 2 * kSwatchMargin) / 2;
  children.addSurface(QStringLiteral("picNew"), &frame).setGeometry(kSwatchMargin, kSwatchMargin, width, half);
  children.addSurface(QStringLiteral("picCurrent"), &frame)
      .setGeometry(kSwatchMargin, kSwatchMargin + half, width, half);
  return &frame;
}

QLabel* Header(FormChildren& children, int index, const QString& caption) {
  return &children.addLabel(FormChildren::indexedName(kHeader, index), caption);
}

QVBoxLayout* RightColumn(FormChildren& children) {
  auto* column = new QVBoxLayout;
  QPushButton& ok = children.addButton(QStringLiteral("cmdButton"), 0, QStringLiteral("Ok"));
  ok.setDefault(true);
  column->addWidget(&ok);
  column->addWidget(&children.addButton(QStringLiteral("cmdButton"), 1, QStringLiteral("Cancel")));
  column->addSpacing(12);
  column->addWidget(Header(children, kNewHeader, QStringLiteral("New:")));
  column->addWidget(SwatchFrame(children), 0, Qt::AlignHCenter);
  column->addWidget(Header(children, kCurrentHeader, QStringLiteral("Current:")));
  column->addStretch(1);
  column->addWidget(&children.addButton(QStringLiteral("cmdCustom"), QStringLiteral("Custom")));
  column->addWidget(&children.addButton(QStringLiteral("cmdSelect"), QStringLiteral("Select...")));
  return column;
}

QHBoxLayout* ValueRow(FormChildren& children) {
  auto* row = new QHBoxLayout;
  QLabel* header = Header(children, kValueHeader, QStringLiteral("Value:"));
  QLineEdit* field = children.addTextBox(QStringLiteral("txtColor")).lineEdit();
  header->setBuddy(field);
  row->addWidget(header);
  row->addWidget(field, 1);
  return row;
}

void SetTabOrder(const FormChildren& children) {
  QWidget::setTabOrder(children.findLineEdit(QStringLiteral("txtColor")), children.findButton(QStringLiteral("cmdButton"), 0));
  QWidget::setTabOrder(children.findButton(QStringLiteral("cmdButton"), 0), children.findButton(QStringLiteral("cmdButton"), 1));
  QWidget::setTabOrder(children.findButton(QStringLiteral("cmdButton"), 1), children.findButton(QStringLiteral("cmdCustom")));
  QWidget::setTabOrder(children.findButton(QStringLiteral("cmdCustom")), children.findButton(QStringLiteral("cmdSelect")));
}

}  // namespace

void PopupDesign::build(QtFormWindow& form) {
  form.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                      Qt::WindowCloseButtonHint);
  form.setBlocksOtherWindows(true);
  form.setCentredOnFirstShow(true);
  FormChildren& children = form.children();
  auto* grid = new QGridLayout(&form);
  grid->addWidget(HexagonBox(children), 0, 0, Qt::AlignLeft | Qt::AlignTop);
  grid->addLayout(RightColumn(children), 0, 1);
  grid->addLayout(ValueRow(children), 1, 0, 1, 2);
  SetTabOrder(children);
  form.resize(form.sizeHint());
}

}  // namespace LumoColorCombo::host
