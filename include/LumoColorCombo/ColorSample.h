#pragma once

#include <memory>

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

// The sample box: one line of text in a chosen colour on a chosen background, centred,
// with an optional one-pixel black frame. Place it beside a colour picker and feed it
// the picks to preview a colour pair. It raises no events and takes no input: mouse
// events go on to its parent. Unlike the grids it takes whatever size it is given.
class LUMOCOLORCOMBO_EXPORT ColorSample : public QWidget {
  Q_OBJECT
  Q_PROPERTY(LumoColorCombo::OLE_COLOR BackColor READ BackColor WRITE setBackColor)
  Q_PROPERTY(LumoColorCombo::KDBorderConstants BorderStyle READ BorderStyle WRITE setBorderStyle)
  Q_PROPERTY(QFont Font READ Font WRITE setSampleFont RESET resetSampleFont)
  Q_PROPERTY(QString Text READ Text WRITE setText)
  Q_PROPERTY(LumoColorCombo::OLE_COLOR ForeColor READ ForeColor WRITE setForeColor)

 public:
  explicit ColorSample(QWidget* parent = nullptr);
  // With a runtime of its own instead of the application's default one (the default
  // constructor's): a test, or a part of an application kept apart from the rest.
  ColorSample(Runtime& runtime, QWidget* parent);
  ~ColorSample() override;

  // Runs the library's About box modally over this widget's window.
  Q_INVOKABLE void AboutBox();
  OLE_COLOR BackColor() const;
  void setBackColor(OLE_COLOR color);
  // Any value is kept; only bcFixedSingle draws the frame.
  KDBorderConstants BorderStyle() const;
  void setBorderStyle(KDBorderConstants style);
  // The font of the text, by its point size. Named apart from QWidget::setFont, which
  // stays the widget's own font.
  QFont Font() const;
  void setSampleFont(const QFont& font);
  // Back to the font of the form the sample sits on.
  void resetSampleFont();
  Q_INVOKABLE void Refresh();
  QString Text() const;
  void setText(const QString& text);
  OLE_COLOR ForeColor() const;
  void setForeColor(OLE_COLOR color);

  // The persisted properties, as a form file keeps them (values equal to their default
  // are left out). Reading them replaces the control as loading a form does.
  QVariantMap writeProperties() const;
  void readProperties(const QVariantMap& properties);

  host::SurfaceWidget* surface() const;
  // Room for the text with a margin round it.
  QSize sizeHint() const override;

 signals:
  // A persisted property changed; the name is the setter's label ("Text [Let]").
  void propertyChanged(const QString& name);

 private:
  ColorSample(host::QtHost& host, QWidget* parent);

  class Private;
  std::unique_ptr<Private> const d;
};

}  // namespace LumoColorCombo
