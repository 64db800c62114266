#include <LumoColorCombo/ColorSample.h>

#include <algorithm>
#include <cmath>
#include <optional>

#include <QPointer>

#include "colorsample/ColorSample.h"
#include "qt/ControlLifecycle.h"
#include "qt/QtControlSite.h"
#include "qt/QtHost.h"
#include "qt/QtPropertyBag.h"
#include "qt/SurfaceWidget.h"

namespace LumoColorCombo {
namespace {

// The smallest sample sizeHint suggests, and the margin it leaves round the text.
constexpr int kMinimumWidth = 120;
constexpr int kMargin = 12;

}  // namespace

class ColorSample::Private {
 public:
  Private(ColorSample* q, host::QtHost& shared) : host(shared), picScreen(new host::SurfaceWidget(q)), site(q) {
    Create(nullptr);
  }

  void Create(const lumo::PropertyBag* bag) {
    host::StartControl(core, bag, host.runtime(), *picScreen, site);
  }

  host::QtHost& host;
  host::SurfaceWidget* picScreen;  // owned by the widget
  host::QtControlSite site;
  std::optional<lumo::ColorSample> core;
};

ColorSample::ColorSample(QWidget* parent) : ColorSample(host::QtHost::instance(), parent) {}

ColorSample::ColorSample(Runtime& runtime, QWidget* parent) : ColorSample(runtime.host(), parent) {}

ColorSample::ColorSample(host::QtHost& host, QWidget* parent)
    : QWidget(parent), d(std::make_unique<Private>(this, host)) {
  // The sample takes no input: clicks go on to the parent, the focus passes it by.
  d->picScreen->setAttribute(Qt::WA_TransparentForMouseEvents);
  d->picScreen->setFocusPolicy(Qt::NoFocus);
  d->picScreen->setMouseTracking(false);
  setAccessibleName(tr("Colour sample"));
  // A new text or font changes the size the sample would like. A slot may delete the
  // sample.
  d->site.setChangeHandler([this](const QString& name) {
    const QPointer<ColorSample> alive(this);
    emit propertyChanged(name);
    if (alive) updateGeometry();
  });
  // The drawing holds resolved colours at one pixel density: a new palette, or a move
  // to a screen of another scale, needs a fresh paint.
  d->picScreen->setStaleHandler([this](host::SurfaceWidget::Stale) { d->core->Refresh(); });
  // The size a new sample takes; the site passes it on to the control as its Resize.
  resize(sizeHint());
}

// The surface outlives the control's parts by a moment (Qt deletes children last):
// nothing may reach them through it then.
ColorSample::~ColorSample() { d->picScreen->setStaleHandler(nullptr); }

void ColorSample::AboutBox() { d->core->AboutBox(); }
OLE_COLOR ColorSample::BackColor() const { return d->core->BackColor(); }
void ColorSample::setBackColor(OLE_COLOR color) { d->core->SetBackColor(color); }
KDBorderConstants ColorSample::BorderStyle() const { return static_cast<KDBorderConstants>(d->core->BorderStyle()); }
void ColorSample::setBorderStyle(KDBorderConstants style) { d->core->SetBorderStyle(style); }

QFont ColorSample::Font() const {
  return host::SurfaceWidget::propertyFont(d->core->Font().value_or(d->site.AmbientFont()));
}

void ColorSample::setSampleFont(const QFont& font) { d->core->SetFont(host::QtControlSite::toStdFont(font)); }
void ColorSample::resetSampleFont() { d->core->SetFont(std::nullopt); }
void ColorSample::Refresh() { d->core->Refresh(); }
QString ColorSample::Text() const { return QString::fromStdString(d->core->Text()); }
void ColorSample::setText(const QString& text) { d->core->SetText(text.toStdString()); }
OLE_COLOR ColorSample::ForeColor() const { return d->core->ForeColor(); }
void ColorSample::setForeColor(OLE_COLOR color) { d->core->SetForeColor(color); }

QVariantMap ColorSample::writeProperties() const {
  host::QtPropertyBag bag;
  d->site.SaveControl(bag);
  return bag.values();
}

void ColorSample::readProperties(const QVariantMap& properties) {
  const host::QtPropertyBag bag(properties);
  d->Create(&bag);
}

host::SurfaceWidget* ColorSample::surface() const { return d->picScreen; }

QSize ColorSample::sizeHint() const {
  // The surface measures with the sample's own font.
  const std::string text = d->core->Text();
  const int width = static_cast<int>(std::ceil(d->picScreen->TextWidth(text))) + 2 * kMargin;
  const int height = static_cast<int>(std::ceil(d->picScreen->TextHeight(text))) + kMargin;
  return {std::max(kMinimumWidth, width), height};
}

}  // namespace LumoColorCombo
