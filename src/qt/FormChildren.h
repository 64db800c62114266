#pragma once

#include <map>
#include <memory>

#include <QObject>
#include <QPointer>
#include <QString>

class QLineEdit;
class QPushButton;
class QWidget;

namespace LumoColorCombo::host {

class QtControlSite;
class QtLabel;
class QtTextBox;
class SurfaceWidget;

// The named children of one of the library's forms, as its design lays them out:
// drawing surfaces, hosted controls (a box holding the control's surface, reached by
// a site and a surface of the control's name), labels, text fields and buttons. A
// member of a control array is named with its index, "lblHeader(0)", "cmdButton(1)".
//
// A name the design does not have is made on first use as a hidden child, so a form
// asked for something unexpected keeps working instead of failing.
class FormChildren : public QObject {
  Q_OBJECT

 public:
  explicit FormChildren(QWidget& form);
  ~FormChildren() override;

  // --- design: each adds a child under `parent`, the form itself when null -----------
  SurfaceWidget& addSurface(const QString& name, QWidget* parent = nullptr);
  // A hosted control: a box named `name` with the control's surface at its origin.
  QWidget& addHostedControl(const QString& name, QWidget* parent = nullptr);
  QtLabel& addLabel(const QString& name, const QString& caption, QWidget* parent = nullptr);
  QtTextBox& addTextBox(const QString& name, QWidget* parent = nullptr);
  // A button of its own (index 0 in its clicks) and a member of a button array.
  QPushButton& addButton(const QString& name, const QString& caption, QWidget* parent = nullptr);
  QPushButton& addButton(const QString& name, int index, const QString& caption, QWidget* parent = nullptr);

  // --- the services the core asks for by name -----------------------------------------
  SurfaceWidget& surface(const QString& name);
  QtControlSite& site(const QString& name);
  QtTextBox& textBox(const QString& name);
  QtLabel& label(const QString& name);

  // --- look-ups that never create (null when absent) ----------------------------------
  SurfaceWidget* findSurface(const QString& name) const;
  QWidget* findHostedControl(const QString& name) const;
  QtLabel* findLabel(const QString& name) const;
  QLineEdit* findLineEdit(const QString& name) const;
  QPushButton* findButton(const QString& name, int index = 0) const;

  static QString indexedName(const QString& name, int index);

 signals:
  void clicked(const QString& name, int index);
  void textBoxLeft(const QString& name);

 private:
  QWidget* Under(QWidget* parent) const;
  QPushButton& AddButton(const QString& objectName, const QString& name, int index, const QString& caption,
                         QWidget* parent);

  QWidget& form_;
  std::map<QString, QPointer<SurfaceWidget>> surfaces_;
  std::map<QString, QPointer<QWidget>> hostedControls_;
  std::map<QString, std::unique_ptr<QtControlSite>> sites_;
  std::map<QString, std::unique_ptr<QtTextBox>> textBoxes_;
  std::map<QString, QPointer<QtLabel>> labels_;
  std::map<QString, QPointer<QPushButton>> buttons_;
};

}  // namespace LumoColorCombo::host
