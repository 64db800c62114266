#pragma once

#include <memory>

#include <QString>
#include <QVariantMap>
#include <QWidget>

#include <LumoColorCombo/LumoColorCombo.h>
#include <LumoColorCombo/Runtime.h>
#include <LumoColorCombo/lumocolorcombo_export.h>

namespace LumoColorCombo {

namespace host {
class QtHost;
class SurfaceWidget;
class QtLabel;
}  // namespace host

// The honeycomb picker: 127 hexagonal cells and a grey row, a hover caption below,
// selection by click or arrow keys. The widget sizes itself to its content.
class LUMOCOLORCOMBO_EXPORT ColorHexagon : public QWidget {
  Q_OBJECT
  Q_PROPERTY(LumoColorCombo::OLE_COLOR BackColor READ BackColor WRITE setBackColor)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR AutoColor READ AutoColor WRITE setAutoColor)
  Q_PROPERTY(QString AutomaticText READ AutomaticText WRITE setAutomaticText)
  Q_PROPERTY(bool IsAutomatic READ IsAutomatic WRITE setIsAutomatic)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR Color READ Color WRITE setColor)

 public:
  explicit ColorHexagon(QWidget* parent = nullptr);
  // With a runtime of its own instead of the application's default one (the default
  // constructor's): a test, or a part of an application kept apart from the rest.
  ColorHexagon(Runtime& runtime, QWidget* parent);
  ~ColorHexagon() override;

  OLE_COLOR BackColor() const;
  void setBackColor(OLE_COLOR color);
  OLE_COLOR AutoColor() const;
  void setAutoColor(OLE_COLOR color);
  QString AutomaticText() const;
  void setAutomaticText(const QString& text);
  bool IsAutomatic() const;
  void setIsAutomatic(bool value);
  OLE_COLOR Color() const;
  void setColor(OLE_COLOR color);

  Q_INVOKABLE void Refresh();

  // The persisted properties, as a form file keeps them (values equal to their
  // default are left out).
  QVariantMap writeProperties() const;
  void readProperties(const QVariantMap& properties);

  // The drawing surface and the hover caption, for hosts that inspect what is shown.
  host::SurfaceWidget* surface() const;
  host::QtLabel* overColorLabel() const;

 signals:
  void ColorChanged(LumoColorCombo::OLE_COLOR NewColor, const QString& NewColorName, const QString& ColorHex);
  void IsAutomaticChanged(bool NewValue);
  void ColorClick(LumoColorCombo::OLE_COLOR Color, const QString& ColorName, qint16 Button, qint16 Shift,
                  qint32 X, qint32 Y);
  void ColorDblClick(LumoColorCombo::OLE_COLOR Color, const QString& ColorName);
  void ColorOver(LumoColorCombo::OLE_COLOR Color, const QString& ColorName, qint16 Button, qint16 Shift,
                 qint32 X, qint32 Y);

 private:
  ColorHexagon(host::QtHost& host, QWidget* parent);

  class Private;
  std::unique_ptr<Private> const d;
};

}  // namespace LumoColorCombo
