#include <LumoColorCombo/ColorBox.h>

#include <optional>

#include "colorbox/ColorBox.h"
#include "colorbox/ColorBoxEvents.h"
#include "qt/ControlLifecycle.h"
#include "qt/QtControlSite.h"
#include "qt/QtHost.h"
#include "qt/QtPropertyBag.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo {
namespace {

QString Text(const std::string& utf8) { return QString::fromStdString(utf8); }

// Turns the core control's events into the widget's signals. Click's colour and
// flag go out by reference, so a directly connected slot sees (and may change) them.
class BoxSignals : public lumo::ColorBoxEvents {
 public:
  explicit BoxSignals(ColorBox* widget) : widget_(widget) {}

  void OverColor(lumo::OLE_COLOR lColor, bool bOverAutomatic) override {
    emit widget_->OverColor(lColor, bOverAutomatic);
  }
  void Click(lumo::OLE_COLOR& lColor, const std::string& sColorName, bool& bIsAutomatic) override {
    emit widget_->Click(lColor, Text(sColorName), bIsAutomatic);
  }
  void MoreColorClick() override { emit widget_->MoreColorClick(); }
  void UserCancel() override { emit widget_->UserCancel(); }
  void Resize() override { emit widget_->Resize(); }

 private:
  ColorBox* widget_;
};

}  // namespace

class ColorBox::Private {
 public:
  Private(ColorBox* q, host::QtHost& shared)
      : host(shared), picScreen(new host::SurfaceWidget(q)), site(q), events(q) {
    Create(nullptr);
  }

  void Create(const lumo::PropertyBag* bag) {
    host::StartControl(core, bag, host.runtime(), *picScreen, site, events);
  }

  host::QtHost& host;
  host::SurfaceWidget* picScreen;  // owned by the widget
  host::QtControlSite site;
  BoxSignals events;
  std::optional<lumo::ColorBox> core;
};

ColorBox::ColorBox(QWidget* parent) : ColorBox(host::QtHost::instance(), parent) {}

ColorBox::ColorBox(Runtime& runtime, QWidget* parent) : ColorBox(runtime.host(), parent) {}

ColorBox::ColorBox(host::QtHost& host, QWidget* parent) : QWidget(parent), d(std::make_unique<Private>(this, host)) {
  setFocusProxy(d->picScreen);
  setFocusPolicy(Qt::StrongFocus);
  d->picScreen->setMouseTracking(true);  // hot tracking needs moves without a button
  setAccessibleName(tr("Colour palette"));
  d->site.setChangeHandler([this](const QString& name) { emit propertyChanged(name); });
  // The drawing holds resolved colours at one pixel density: a new palette, or a move
  // to a screen of another scale, needs a fresh paint.
  d->picScreen->setStaleHandler([this](host::SurfaceWidget::Stale) { d->core->Refresh(); });
}

// The surface outlives the control's parts by a moment (Qt deletes children last):
// nothing may reach them through it then.
ColorBox::~ColorBox() { d->picScreen->setStaleHandler(nullptr); }

ComboPickStyles ColorBox::PickStyle() const { return static_cast<ComboPickStyles>(d->core->PickStyle()); }
void ColorBox::setPickStyle(ComboPickStyles style) { d->core->SetPickStyle(style); }
QString ColorBox::ColorName() const { return Text(d->core->ColorName()); }
OLE_COLOR ColorBox::AutoColor() const { return d->core->AutoColor(); }
void ColorBox::setAutoColor(OLE_COLOR color) { d->core->SetAutoColor(color); }
QString ColorBox::AutomaticText() const { return Text(d->core->AutomaticText()); }
void ColorBox::setAutomaticText(const QString& text) { d->core->SetAutomaticText(text.toStdString()); }
QString ColorBox::MoreColorsText() const { return Text(d->core->MoreColorsText()); }
void ColorBox::setMoreColorsText(const QString& text) { d->core->SetMoreColorsText(text.toStdString()); }
bool ColorBox::IsAutomatic() const { return d->core->IsAutomatic(); }
void ColorBox::setIsAutomatic(bool value) { d->core->SetIsAutomatic(value); }
OLE_COLOR ColorBox::Color() const { return d->core->Color(); }
void ColorBox::setColor(OLE_COLOR color) { d->core->SetColor(color); }
bool ColorBox::AllowAutomatic() const { return d->core->AllowAutomatic(); }
void ColorBox::setAllowAutomatic(bool allow) { d->core->SetAllowAutomatic(allow); }
bool ColorBox::AllowMoreColors() const { return d->core->AllowMoreColors(); }
void ColorBox::setAllowMoreColors(bool allow) { d->core->SetAllowMoreColors(allow); }

void ColorBox::Refresh() { d->core->Refresh(); }

QVariantMap ColorBox::writeProperties() const {
  host::QtPropertyBag bag;
  d->site.SaveControl(bag);
  return bag.values();
}

void ColorBox::readProperties(const QVariantMap& properties) {
  const host::QtPropertyBag bag(properties);
  d->Create(&bag);
}

void ColorBox::setDesignMode(bool designing) { d->site.setUserMode(!designing); }

host::SurfaceWidget* ColorBox::surface() const { return d->picScreen; }

}  // namespace LumoColorCombo
