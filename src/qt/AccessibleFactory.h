#pragma once

#include <QString>

class QAccessibleInterface;
class QObject;

namespace LumoColorCombo::host {

// Gives Qt's accessibility the interfaces of what the controls draw themselves: every
// drawing surface (a grid's or a honeycomb's reads as a list of its cells and buttons)
// and the colour combo as a combo box. Any other object is left to Qt.
class AccessibleFactory {
 public:
  // Registers the factory with Qt the first time it is called; later calls do nothing.
  static void install();

 private:
  static QAccessibleInterface* create(const QString& key, QObject* object);
};

}  // namespace LumoColorCombo::host
