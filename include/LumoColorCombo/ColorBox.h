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
}

// The palette grid: one of fifteen palettes, with an optional "Automatic" button above
// the cells and an optional "More Colors..." button below them; mouse, keyboard and
// tooltips. The widget sizes itself to its content.
class LUMOCOLORCOMBO_EXPORT ColorBox : public QWidget {
  Q_OBJECT
  Q_PROPERTY(LumoColorCombo::ComboPickStyles PickStyle READ PickStyle WRITE setPickStyle)
  Q_PROPERTY(QString ColorName READ ColorName)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR AutoColor READ AutoColor WRITE setAutoColor)
  Q_PROPERTY(QString AutomaticText READ AutomaticText WRITE setAutomaticText)
  Q_PROPERTY(QString MoreColorsText READ MoreColorsText WRITE setMoreColorsText)
  Q_PROPERTY(bool IsAutomatic READ IsAutomatic WRITE setIsAutomatic)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR Color READ Color WRITE setColor)
  Q_PROPERTY(bool AllowAutomatic READ AllowAutomatic WRITE setAllowAutomatic)
  Q_PROPERTY(bool AllowMoreColors READ AllowMoreColors WRITE setAllowMoreColors)

 public:
  explicit ColorBox(QWidget* parent = nullptr);
  // With a runtime of its own instead of the application's default one (the default
  // constructor's): a test, or a part of an application kept apart from the rest.
  ColorBox(Runtime& runtime, QWidget* parent);
  ~ColorBox() override;

  ComboPickStyles PickStyle() const;
  // Any value is kept; one outside the fifteen palettes leaves the cells as they were.
  void setPickStyle(ComboPickStyles style);
  QString ColorName() const;
  OLE_COLOR AutoColor() const;
  void setAutoColor(OLE_COLOR color);
  QString AutomaticText() const;
  void setAutomaticText(const QString& text);
  QString MoreColorsText() const;
  void setMoreColorsText(const QString& text);
  bool IsAutomatic() const;
  void setIsAutomatic(bool value);
  OLE_COLOR Color() const;
  void setColor(OLE_COLOR color);
  bool AllowAutomatic() const;
  void setAllowAutomatic(bool allow);
  bool AllowMoreColors() const;
  void setAllowMoreColors(bool allow);

  Q_INVOKABLE void Refresh();

  // The persisted properties, as a form file keeps them (values equal to their default
  // are left out). Reading them replaces the control as loading a form does.
  QVariantMap writeProperties() const;
  void readProperties(const QVariantMap& properties);

  // Design mode: the container is a form designer, not a running application.
  void setDesignMode(bool designing);

  host::SurfaceWidget* surface() const;

 signals:
  void OverColor(LumoColorCombo::OLE_COLOR lColor, bool bOverAutomatic);
  void Click(LumoColorCombo::OLE_COLOR& lColor, const QString& sColorName, bool& bIsAutomatic);
  void MoreColorClick();
  void UserCancel();
  void Resize();
  // A persisted property changed; the name is the setter's label ("PickStyle [Let]").
  void propertyChanged(const QString& name);

 private:
  ColorBox(host::QtHost& host, QWidget* parent);

  class Private;
  std::unique_ptr<Private> const d;
};

}  // namespace LumoColorCombo
