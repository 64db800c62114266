#pragma once

#include <memory>

#include <QColor>
#include <QFont>
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

// The colour combo: a one-line field showing the current colour (or the automatic text,
// or a caption, by Style) that drops a palette grid under itself when clicked, or on
// Down, Up, Left, Right or F4 with any modifier, or on Alt with the caption's access key.
// While the grid is open the colour under the pointer is previewed in the field; a pick
// raises the Before/After events and becomes the combo's colour. The height follows the
// font; the width is the container's.
//
// Beside the published members, `currentColor` is the colour the field stands for as a
// QColor (the automatic colour while IsAutomatic), marked USER, so that item delegates
// and QDataWidgetMapper can use the combo as the editor of a colour.
class LUMOCOLORCOMBO_EXPORT ColorCombo : public QWidget {
  Q_OBJECT
  Q_PROPERTY(bool AllowHotTracking READ AllowHotTracking WRITE setAllowHotTracking)
  Q_PROPERTY(bool AllowAutoColorBox READ AllowAutoColorBox WRITE setAllowAutoColorBox)
  Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
  Q_PROPERTY(LumoColorCombo::CCStyleConstants Style READ Style WRITE setStyle)
  Q_PROPERTY(LumoColorCombo::OpenEffectConstants OpenEffect READ OpenEffect WRITE setOpenEffect)
  Q_PROPERTY(LumoColorCombo::ComboPickStyles PickStyle READ PickStyle WRITE setPickStyle)
  Q_PROPERTY(bool Enabled READ Enabled WRITE setComboEnabled)
  Q_PROPERTY(QString AutomaticText READ AutomaticText WRITE setAutomaticText)
  Q_PROPERTY(QString MoreColorsText READ MoreColorsText WRITE setMoreColorsText)
  Q_PROPERTY(bool IsAutomatic READ IsAutomatic WRITE setIsAutomatic)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR AutoColor READ AutoColor WRITE setAutoColor)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR Color READ Color WRITE setColor)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR ForeColor READ ForeColor WRITE setForeColor)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR BackColor READ BackColor WRITE setBackColor)
  Q_PROPERTY(QFont Font READ Font WRITE setComboFont)
  Q_PROPERTY(bool AllowAutomatic READ AllowAutomatic WRITE setAllowAutomatic)
  Q_PROPERTY(bool AllowMoreColors READ AllowMoreColors WRITE setAllowMoreColors)
  // Declared after the published members, so that their order comes first.
  Q_PROPERTY(QColor currentColor READ currentColor WRITE setCurrentColor NOTIFY currentColorChanged USER true)

 public:
  explicit ColorCombo(QWidget* parent = nullptr);
  // With a runtime of its own instead of the application's default one (the default
  // constructor's): a test, or a part of an application kept apart from the rest.
  ColorCombo(Runtime& runtime, QWidget* parent);
  ~ColorCombo() override;

  bool AllowHotTracking() const;
  void setAllowHotTracking(bool allow);
  bool AllowAutoColorBox() const;
  void setAllowAutoColorBox(bool allow);
  QString Caption() const;
  void setCaption(const QString& caption);
  // Any value is kept; one outside the four styles draws no frame.
  CCStyleConstants Style() const;
  void setStyle(CCStyleConstants style);
  OpenEffectConstants OpenEffect() const;
  void setOpenEffect(OpenEffectConstants effect);
  // A value outside the fifteen palettes becomes cpsStandard.
  ComboPickStyles PickStyle() const;
  void setPickStyle(ComboPickStyles style);
  // The control's own Enabled, which it applies to the widget at run time (a designer
  // keeps it selectable). QWidget::setEnabled on the combo itself sets it too.
  bool Enabled() const;
  void setComboEnabled(bool enabled);
  QString AutomaticText() const;
  void setAutomaticText(const QString& text);
  QString MoreColorsText() const;
  void setMoreColorsText(const QString& text);
  // Always false while AllowAutomatic is false. Setting it raises no event.
  bool IsAutomatic() const;
  void setIsAutomatic(bool value);
  OLE_COLOR AutoColor() const;
  void setAutoColor(OLE_COLOR color);
  // Setting it raises no event.
  OLE_COLOR Color() const;
  void setColor(OLE_COLOR color);
  OLE_COLOR ForeColor() const;
  void setForeColor(OLE_COLOR color);
  OLE_COLOR BackColor() const;
  void setBackColor(OLE_COLOR color);
  // The control's font: the field's texts use it and its height follows it. Named apart
  // from QWidget::setFont, which stays the widget's own font.
  QFont Font() const;
  void setComboFont(const QFont& font);
  bool AllowAutomatic() const;
  void setAllowAutomatic(bool allow);
  bool AllowMoreColors() const;
  void setAllowMoreColors(bool allow);

  // Shows the library's About box over the combo's window.
  Q_INVOKABLE void AboutBox();
  Q_INVOKABLE void Refresh();

  // The colour shown, resolved through the widget's palette: Color, or AutoColor while
  // IsAutomatic. Setting a valid colour sets Color and clears IsAutomatic; an invalid
  // one changes nothing.
  QColor currentColor() const;
  void setCurrentColor(const QColor& color);

  // The persisted properties, as a form file keeps them (values equal to their default
  // are left out). Reading them replaces the control as loading a form does.
  QVariantMap writeProperties() const;
  void readProperties(const QVariantMap& properties);

  // Design mode: the container is a form designer, not a running application.
  void setDesignMode(bool designing);

  host::SurfaceWidget* surface() const;
  // True while the combo's drop-down is open.
  bool isDroppedDown() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void BeforeColorChanged(LumoColorCombo::OLE_COLOR Color, bool& Cancel);
  void AfterColorChanged(LumoColorCombo::OLE_COLOR Color);
  void BeforeIsAutomaticChanged(bool Value, bool& Cancel);
  void AfterIsAutomaticChanged(bool Value);
  void BeforeDropDown(bool& Cancel);
  void AfterDropUp();
  void DblClick();
  // The shown colour changed, by a pick or from code; never for a preview while the
  // drop-down is open.
  void currentColorChanged(const QColor& color);
  // A persisted property changed; the name is the setter's label ("Style [Let]").
  void propertyChanged(const QString& name);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  ColorCombo(host::QtHost& host, QWidget* parent);

  class Private;
  std::unique_ptr<Private> const d;
};

}  // namespace LumoColorCombo
