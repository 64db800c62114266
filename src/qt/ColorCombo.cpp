#include <LumoColorCombo/ColorCombo.h>

#include <optional>

#include <QEvent>
#include <QPointer>

#include "colorcombo/ColorCombo.h"
#include "colorcombo/ColorComboEvents.h"
#include "qt/ControlLifecycle.h"
#include "qt/QtControlSite.h"
#include "qt/QtHost.h"
#include "qt/QtPropertyBag.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo {
namespace {

// A new combo's width until its container gives it one, and the least it needs for a
// swatch beside the drop button.
constexpr int kDefaultWidth = 120;
constexpr int kMinimumWidth = 40;

QString Text(const std::string& utf8) { return QString::fromStdString(utf8); }

OLE_COLOR OleColor(const QColor& color) { return color.red() | color.green() << 8 | color.blue() << 16; }

}  // namespace

class ColorCombo::Private {
 public:
  Private(ColorCombo* combo, host::QtHost& shared)
      : host(shared), q(combo), picScreen(new host::SurfaceWidget(combo)), site(combo), events(*this) {
    site.setWidthFromContainer(true);
  }

  void Create(const lumo::PropertyBag* bag) {
    host::StartControl(core, bag, host.runtime(), *picScreen, site, events);
  }

  // Announces the shown colour when it changed. A drop-down cycle announces once, what
  // it leaves behind: not its previews, nor the steps of applying a pick.
  void Settle() {
    if (!core || core->DroppedDown()) return;
    const QColor shown = q->currentColor();
    if (shown == announced) return;
    announced = shown;
    emit q->currentColorChanged(shown);
  }

  void PropertyChanged() {
    if (inCycle) {
      SettleLater();
    } else {
      Settle();
    }
  }

  // Runs once control is back in an event loop outside the drop-down: the cycle has
  // ended then, even one that ended without AfterDropUp (a cancel, a reported failure).
  void SettleLater() {
    if (settlePending) return;
    settlePending = true;
    QMetaObject::invokeMethod(
        q,
        [combo = QPointer<ColorCombo>(q)] {
          if (!combo) return;
          Private& d = *combo->d;
          d.settlePending = false;
          if (d.core->DroppedDown()) return;
          d.inCycle = false;
          d.Settle();
        },
        Qt::QueuedConnection);
  }

  // Turns the core control's events into the widget's signals. The Cancel flags go out
  // by reference, so a directly connected slot sets them. A handler may delete the
  // widget; nothing here touches it afterwards unless it still lives.
  class Signals : public lumo::ColorComboEvents {
   public:
    explicit Signals(Private& owner) : d_(owner) {}

    void BeforeColorChanged(lumo::OLE_COLOR Color, bool& Cancel) override {
      const QPointer<ColorCombo> alive(d_.q);
      emit d_.q->BeforeColorChanged(Color, Cancel);
      if (alive && Cancel) d_.SettleLater();
    }
    void AfterColorChanged(lumo::OLE_COLOR Color) override { emit d_.q->AfterColorChanged(Color); }
    void BeforeIsAutomaticChanged(bool Value, bool& Cancel) override {
      const QPointer<ColorCombo> alive(d_.q);
      emit d_.q->BeforeIsAutomaticChanged(Value, Cancel);
      if (alive && Cancel) d_.SettleLater();
    }
    void AfterIsAutomaticChanged(bool Value) override { emit d_.q->AfterIsAutomaticChanged(Value); }
    void BeforeDropDown(bool& Cancel) override {
      const QPointer<ColorCombo> alive(d_.q);
      emit d_.q->BeforeDropDown(Cancel);
      if (alive && !Cancel) d_.inCycle = true;
    }
    // The new colour is announced before the cycle's last event.
    void AfterDropUp() override {
      const QPointer<ColorCombo> alive(d_.q);
      d_.inCycle = false;
      d_.Settle();
      if (alive) emit d_.q->AfterDropUp();
    }
    void DblClick() override { emit d_.q->DblClick(); }

   private:
    Private& d_;
  };

  host::QtHost& host;
  ColorCombo* q;
  host::SurfaceWidget* picScreen;  // owned by the widget
  host::QtControlSite site;
  Signals events;
  // Last: it goes first, while the surface, the site and the signals still exist.
  std::optional<lumo::ColorCombo> core;
  QColor announced;
  bool inCycle = false;  // from BeforeDropDown to the end of the drop-down cycle
  bool settlePending = false;
};

ColorCombo::ColorCombo(QWidget* parent) : ColorCombo(host::QtHost::instance(), parent) {}

ColorCombo::ColorCombo(Runtime& runtime, QWidget* parent) : ColorCombo(runtime.host(), parent) {}

ColorCombo::ColorCombo(host::QtHost& host, QWidget* parent)
    : QWidget(parent), d(std::make_unique<Private>(this, host)) {
  setFocusProxy(d->picScreen);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setAccessibleName(tr("Colour combo"));
  resize(kDefaultWidth, height());
  d->Create(nullptr);
  d->announced = currentColor();
  // A slot may delete the combo.
  d->site.setChangeHandler([this](const QString& name) {
    const QPointer<ColorCombo> alive(this);
    emit propertyChanged(name);
    if (alive) d->PropertyChanged();
  });
  // The drawing holds resolved colours at one pixel density: a new palette, or a move
  // to a screen of another scale, needs a fresh paint (and a new palette may change the
  // shown colour).
  d->picScreen->setStaleHandler([this](host::SurfaceWidget::Stale why) {
    d->core->Refresh();
    if (why == host::SurfaceWidget::Stale::Palette) d->Settle();
  });
}

// The surface outlives the control's parts by a moment (Qt deletes children last):
// nothing may reach them through it then.
ColorCombo::~ColorCombo() { d->picScreen->setStaleHandler(nullptr); }

bool ColorCombo::AllowHotTracking() const { return d->core->AllowHotTracking(); }
void ColorCombo::setAllowHotTracking(bool allow) { d->core->SetAllowHotTracking(allow); }
bool ColorCombo::AllowAutoColorBox() const { return d->core->AllowAutoColorBox(); }
void ColorCombo::setAllowAutoColorBox(bool allow) { d->core->SetAllowAutoColorBox(allow); }
QString ColorCombo::Caption() const { return Text(d->core->Caption()); }
void ColorCombo::setCaption(const QString& caption) { d->core->SetCaption(caption.toStdString()); }
CCStyleConstants ColorCombo::Style() const { return static_cast<CCStyleConstants>(d->core->Style()); }
void ColorCombo::setStyle(CCStyleConstants style) { d->core->SetStyle(style); }
OpenEffectConstants ColorCombo::OpenEffect() const { return static_cast<OpenEffectConstants>(d->core->OpenEffect()); }
void ColorCombo::setOpenEffect(OpenEffectConstants effect) { d->core->SetOpenEffect(effect); }
ComboPickStyles ColorCombo::PickStyle() const { return static_cast<ComboPickStyles>(d->core->PickStyle()); }
void ColorCombo::setPickStyle(ComboPickStyles style) { d->core->SetPickStyle(style); }
bool ColorCombo::Enabled() const { return d->core->Enabled(); }
void ColorCombo::setComboEnabled(bool enabled) { d->core->SetEnabled(enabled); }
QString ColorCombo::AutomaticText() const { return Text(d->core->AutomaticText()); }
void ColorCombo::setAutomaticText(const QString& text) { d->core->SetAutomaticText(text.toStdString()); }
QString ColorCombo::MoreColorsText() const { return Text(d->core->MoreColorsText()); }
void ColorCombo::setMoreColorsText(const QString& text) { d->core->SetMoreColorsText(text.toStdString()); }
bool ColorCombo::IsAutomatic() const { return d->core->IsAutomatic(); }
void ColorCombo::setIsAutomatic(bool value) { d->core->SetIsAutomatic(value); }
OLE_COLOR ColorCombo::AutoColor() const { return d->core->AutoColor(); }
void ColorCombo::setAutoColor(OLE_COLOR color) { d->core->SetAutoColor(color); }
OLE_COLOR ColorCombo::Color() const { return d->core->Color(); }
void ColorCombo::setColor(OLE_COLOR color) { d->core->SetColor(color); }
OLE_COLOR ColorCombo::ForeColor() const { return d->core->ForeColor(); }
void ColorCombo::setForeColor(OLE_COLOR color) { d->core->SetForeColor(color); }
OLE_COLOR ColorCombo::BackColor() const { return d->core->BackColor(); }
void ColorCombo::setBackColor(OLE_COLOR color) { d->core->SetBackColor(color); }
QFont ColorCombo::Font() const { return host::SurfaceWidget::propertyFont(d->core->Font()); }
void ColorCombo::setComboFont(const QFont& font) { d->core->SetFont(host::QtControlSite::toStdFont(font)); }
bool ColorCombo::AllowAutomatic() const { return d->core->AllowAutomatic(); }
void ColorCombo::setAllowAutomatic(bool allow) { d->core->SetAllowAutomatic(allow); }
bool ColorCombo::AllowMoreColors() const { return d->core->AllowMoreColors(); }
void ColorCombo::setAllowMoreColors(bool allow) { d->core->SetAllowMoreColors(allow); }

void ColorCombo::AboutBox() { d->core->AboutBox(); }
void ColorCombo::Refresh() { d->core->Refresh(); }

QColor ColorCombo::currentColor() const {
  return d->picScreen->resolve(d->core->IsAutomatic() ? d->core->AutoColor() : d->core->Color());
}

void ColorCombo::setCurrentColor(const QColor& color) {
  if (!color.isValid()) return;
  d->core->SetColor(OleColor(color));
  d->core->SetIsAutomatic(false);
}

QVariantMap ColorCombo::writeProperties() const {
  host::QtPropertyBag bag;
  d->site.SaveControl(bag);
  return bag.values();
}

void ColorCombo::readProperties(const QVariantMap& properties) {
  const host::QtPropertyBag bag(properties);
  d->Create(&bag);
  d->Settle();
}

void ColorCombo::setDesignMode(bool designing) {
  d->site.setUserMode(!designing);
  d->core->Refresh();  // a designer keeps a disabled control selectable
}

host::SurfaceWidget* ColorCombo::surface() const { return d->picScreen; }

bool ColorCombo::isDroppedDown() const { return d->core->DroppedDown(); }

QSize ColorCombo::sizeHint() const { return {kDefaultWidth, height()}; }
QSize ColorCombo::minimumSizeHint() const { return {kMinimumWidth, height()}; }

// QWidget::setEnabled on the combo (or a designer's "enabled") goes to the control's
// Enabled, which every redraw applies to the widget again. Only the combo's own setting
// counts (WA_ForceDisabled), not a disabled parent's.
void ColorCombo::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::EnabledChange || !d || !d->core || !d->site.AmbientUserMode()) return;
  const bool enabled = !testAttribute(Qt::WA_ForceDisabled);
  if (enabled != d->core->Enabled()) d->core->SetEnabled(enabled);
}

}  // namespace LumoColorCombo
