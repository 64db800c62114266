#include "qt/QtLabel.h"

#include <QEvent>

#include "qt/SystemColors.h"
#include "qt/Twips.h"

namespace LumoColorCombo::host {

QtLabel::QtLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(false);
  setAutoFillBackground(true);
  ApplyBackColor();
}

std::string QtLabel::Caption() const { return text().toStdString(); }

void QtLabel::SetCaption(const std::string& caption) {
  setText(QString::fromStdString(caption));
  setAccessibleName(text());
}

void QtLabel::SetBackColor(lumo::OLE_COLOR color) {
  backColor_ = color;
  ApplyBackColor();
}

std::int32_t QtLabel::Left() const { return Twips::fromPixels(x()); }
std::int32_t QtLabel::Top() const { return Twips::fromPixels(y()); }
std::int32_t QtLabel::Width() const { return Twips::fromPixels(width()); }
std::int32_t QtLabel::Height() const { return Twips::fromPixels(height()); }

void QtLabel::Move(std::int32_t left, std::int32_t top) { move(Twips::toPixels(left), Twips::toPixels(top)); }

void QtLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  // A system colour is a palette entry: follow the theme when it changes. The parent's
  // palette is the theme's; our own Window role is the one we set.
  if (event->type() == QEvent::PaletteChange && lumo::IsSystemColor(backColor_)) ApplyBackColor();
}

void QtLabel::ApplyBackColor() {
  const QPalette theme = parentWidget() ? parentWidget()->palette() : QPalette();
  const QColor color = SystemColors::resolve(backColor_, theme);
  QPalette own = palette();
  if (own.color(QPalette::Window) == color) return;
  own.setColor(QPalette::Window, color);
  setPalette(own);
}

}  // namespace LumoColorCombo::host
