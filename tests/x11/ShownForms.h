#pragma once

#include <QApplication>
#include <QWindow>

#include "GridSpots.h"
#include "ServerInput.h"
#include "qt/QtFormWindow.h"
#include "qt/SurfaceWidget.h"

// The library's windows as a person meets them on the screen.
namespace ShownForms {

// The library's window of that form once it is up on the screen, else nullptr.
inline LumoColorCombo::host::QtFormWindow* Find(const char* name) {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    auto* form = qobject_cast<LumoColorCombo::host::QtFormWindow*>(top);
    if (form != nullptr && form->formName() == QLatin1String(name) && form->isVisible() &&
        form->windowHandle()->isExposed()) {
      return form;
    }
  }
  return nullptr;
}

inline QPoint CentreOf(const QWidget& widget) { return widget.mapToGlobal(widget.rect().center()); }

// Clicks a cell of a drawn grid or honeycomb through the server, `nudge` off its spot (Qt
// drops a move to where the pointer already is); answers the colour under the click.
inline lumo::OLE_COLOR ClickCell(const LumoColorCombo::host::SurfaceWidget& surface, QPoint nudge = {}) {
  const QImage picture = surface.image();
  const QPoint cell = GridSpots::CellSpot(picture) + nudge;
  ServerInput::Click(surface.mapToGlobal(cell));
  return GridSpots::ColorAt(picture, cell);
}

}  // namespace ShownForms
