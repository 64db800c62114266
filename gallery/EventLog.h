#pragma once

#include <QPlainTextEdit>

// The gallery's log of what the controls raise, newest last. Consecutive repeats of
// the same line (a pointer resting over one cell) are folded into a count.
class EventLog : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit EventLog(QWidget* parent = nullptr);

  void add(const QString& source, const QString& event);

 private:
  QString lastLine_;
  int repeats_ = 0;
};
