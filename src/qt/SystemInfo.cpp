#include "qt/SystemInfo.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <QSysInfo>
#include <QWidget>

#include "qt/Version.h"

namespace LumoColorCombo::host {

QString SystemInfo::text(const QWidget* context) {
  const QStyle* style = context ? context->style() : QApplication::style();
  QStringList lines;
  lines << QStringLiteral("LumoColorCombo %1").arg(QStringLiteral(LUMOCOLORCOMBO_VERSION_STR))
        << QStringLiteral("Qt %1 (built with %2)").arg(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR))
        << QStringLiteral("Application: %1 %2")
               .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion())
               .trimmed()
        << QStringLiteral("Operating system: %1 (%2 %3, %4)")
               .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
                    QSysInfo::currentCpuArchitecture())
        << QStringLiteral("Qt platform plugin: %1").arg(QGuiApplication::platformName())
        << QStringLiteral("Style: %1").arg(style ? style->name() : QStringLiteral("(none)"));
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n') + screens();
}

QString SystemInfo::screens() {
  const QList<QScreen*> all = QGuiApplication::screens();
  QString text = QStringLiteral("Screens: %1\n").arg(all.size());
  for (qsizetype i = 0; i < all.size(); ++i) {
    const QScreen* screen = all[i];
    const QRect area = screen->geometry();
    text += QStringLiteral("  %1. %2: %3x%4 at %5,%6, device pixel ratio %7, %8 dpi%9\n")
                .arg(i + 1)
                .arg(screen->name().isEmpty() ? QStringLiteral("(unnamed)") : screen->name())
                .arg(area.width())
                .arg(area.height())
                .arg(area.x())
                .arg(area.y())
                .arg(screen->devicePixelRatio())
                .arg(screen->logicalDotsPerInch())
                .arg(screen == QGuiApplication::primaryScreen() ? QStringLiteral(", primary") : QString());
  }
  return text;
}

}  // namespace LumoColorCombo::host
