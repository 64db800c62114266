#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

#include <LumoColorCombo/LumoColorCombo.h>
#include <LumoColorCombo/Runtime.h>
#include <LumoColorCombo/lumocolorcombo_export.h>

namespace LumoColorCombo {

namespace host {
class QtHost;
}

// Runs the modal "More Colors" dialog: a honeycomb, new and current swatches, a colour
// text field and the system colour chooser. Set the caller's state, call exec(), read
// the outcome: the result record's slots (0 committed, 1 colour, 2 automatic, 3 name),
// or one or two slots with slot 0 false when the user cancelled. Given a widget as
// parent, the dialog stands over that widget's window and draws with its palette;
// otherwise it stands over the active window.
class LUMOCOLORCOMBO_EXPORT MoreColorsDialog : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool AllowAutomatic MEMBER allowAutomatic_)
  Q_PROPERTY(QString AutomaticText MEMBER automaticText_)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR AutoColor MEMBER autoColor_)
  Q_PROPERTY(QString MoreColorsText MEMBER moreColorsText_)
  Q_PROPERTY(bool IsAutomatic MEMBER isAutomatic_)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR Color MEMBER color_)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR CurrentColor MEMBER currentColor_)

 public:
  explicit MoreColorsDialog(QObject* parent = nullptr);
  // With a runtime of its own instead of the application's default one.
  MoreColorsDialog(Runtime& runtime, QObject* parent);

  void setAllowAutomatic(bool allow) { allowAutomatic_ = allow; }
  void setAutomaticText(const QString& text) { automaticText_ = text; }
  void setAutoColor(OLE_COLOR color) { autoColor_ = color; }
  void setMoreColorsText(const QString& text) { moreColorsText_ = text; }
  void setIsAutomatic(bool value) { isAutomatic_ = value; }
  void setColor(OLE_COLOR color) { color_ = color; }
  void setCurrentColor(OLE_COLOR color) { currentColor_ = color; }

  // Shows the dialog modally and answers the result record it left.
  QVariantList exec();

  // The result record as it stands (shared by every control of the application).
  static QVariantList popupResult();

 private:
  MoreColorsDialog(host::QtHost& host, QObject* parent);

  host::QtHost* host_;
  bool allowAutomatic_ = true;
  QString automaticText_ = QStringLiteral("Automatic");
  OLE_COLOR autoColor_ = static_cast<OLE_COLOR>(0x80000010);
  QString moreColorsText_ = QStringLiteral("More Colors");
  bool isAutomatic_ = false;
  OLE_COLOR color_ = 0;
  OLE_COLOR currentColor_ = 0;
};

}  // namespace LumoColorCombo
