#include <LumoColorCombo/ColorHexagon.h>

#include <optional>

#include "colorhexagon/ColorHexagon.h"
#include "colorhexagon/ColorHexagonEvents.h"
#include "qt/ControlLifecycle.h"
#include "qt/QtControlSite.h"
#include "qt/QtHost.h"
#include "qt/QtLabel.h"
#include "qt/QtPropertyBag.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo {
namespace {

constexpr int kCaptionHeightPixels = 17;

QString Text(const std::string& utf8) { return QString::fromStdString(utf8); }

// Turns the core control's events into the widget's signals.
class HexagonSignals : public lumo::ColorHexagonEvents {
 public:
  explicit HexagonSignals(ColorHexagon* widget) : widget_(widget) {}

  void ColorChanged(lumo::OLE_COLOR newColor, const std::string& name, const std::string& hex) override {
    emit widget_->ColorChanged(newColor, Text(name), Text(hex));
  }
  void IsAutomaticChanged(bool newValue) override { emit widget_->IsAutomaticChanged(newValue); }
  void ColorClick(lumo::OLE_COLOR color, const std::string& name, std::int16_t button, std::int16_t shift,
                  std::int32_t x, std::int32_t y) override {
    emit widget_->ColorClick(color, Text(name), button, shift, x, y);
  }
  void ColorDblClick(lumo::OLE_COLOR color, const std::string& name) override {
    emit widget_->ColorDblClick(color, Text(name));
  }
  void ColorOver(lumo::OLE_COLOR color, const std::string& name, std::int16_t button, std::int16_t shift,
                 std::int32_t x, std::int32_t y) override {
    emit widget_->ColorOver(color, Text(name), button, shift, x, y);
  }

 private:
  ColorHexagon* widget_;
};

}  // namespace

class ColorHexagon::Private {
 public:
  Private(ColorHexagon* q, host::QtHost& shared)
      : host(shared), picScreen(new host::SurfaceWidget(q)), lblOverColor(new host::QtLabel(q)), site(q), events(q) {
    // The honeycomb is painted at fixed positions as soon as the control exists, so the
    // surface must have its designed extent before that first paint.
    picScreen->Move(0, 0, lumo::ColorHexagon::ScreenWidthTwips, lumo::ColorHexagon::ScreenHeightTwips);
    // One line under the honeycomb, as wide as it; the control places it there itself.
    lblOverColor->resize(picScreen->width(), kCaptionHeightPixels);
    Create(nullptr);
  }

  void Create(const lumo::PropertyBag* bag) {
    host::StartControl(core, bag, host.runtime(), *picScreen, *lblOverColor, site, events);
  }

  host::QtHost& host;
  host::SurfaceWidget* picScreen;  // owned by the widget
  host::QtLabel* lblOverColor;     // owned by the widget
  host::QtControlSite site;
  HexagonSignals events;
  std::optional<lumo::ColorHexagon> core;
};

ColorHexagon::ColorHexagon(QWidget* parent) : ColorHexagon(host::QtHost::instance(), parent) {}

ColorHexagon::ColorHexagon(Runtime& runtime, QWidget* parent) : ColorHexagon(runtime.host(), parent) {}

ColorHexagon::ColorHexagon(host::QtHost& host, QWidget* parent)
    : QWidget(parent), d(std::make_unique<Private>(this, host)) {
  setFocusProxy(d->picScreen);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Honeycomb colour picker"));
  // The drawing holds resolved colours at one pixel density: a new palette, or a move
  // to a screen of another scale, needs a fresh paint.
  d->picScreen->setStaleHandler([this](host::SurfaceWidget::Stale) { d->core->Refresh(); });
}

// The surface outlives the control's parts by a moment (Qt deletes children last):
// nothing may reach them through it then.
ColorHexagon::~ColorHexagon() { d->picScreen->setStaleHandler(nullptr); }

OLE_COLOR ColorHexagon::BackColor() const { return d->core->BackColor(); }
void ColorHexagon::setBackColor(OLE_COLOR color) { d->core->SetBackColor(color); }
OLE_COLOR ColorHexagon::AutoColor() const { return d->core->AutoColor(); }
void ColorHexagon::setAutoColor(OLE_COLOR color) { d->core->SetAutoColor(color); }
QString ColorHexagon::AutomaticText() const { return Text(d->core->AutomaticText()); }
void ColorHexagon::setAutomaticText(const QString& text) { d->core->SetAutomaticText(text.toStdString()); }
bool ColorHexagon::IsAutomatic() const { return d->core->IsAutomatic(); }
void ColorHexagon::setIsAutomatic(bool value) { d->core->SetIsAutomatic(value); }
OLE_COLOR ColorHexagon::Color() const { return d->core->Color(); }
void ColorHexagon::setColor(OLE_COLOR color) { d->core->SetColor(color); }

void ColorHexagon::Refresh() { d->core->Refresh(); }

QVariantMap ColorHexagon::writeProperties() const {
  host::QtPropertyBag bag;
  d->site.SaveControl(bag);
  return bag.values();
}

void ColorHexagon::readProperties(const QVariantMap& properties) {
  const host::QtPropertyBag bag(properties);
  d->Create(&bag);
}

host::SurfaceWidget* ColorHexagon::surface() const { return d->picScreen; }
host::QtLabel* ColorHexagon::overColorLabel() const { return d->lblOverColor; }

}  // namespace LumoColorCombo
