#include "EventLog.h"

#include <QTextBlock>
#include <QTextCursor>

EventLog::EventLog(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setMaximumBlockCount(2000);
  setPlaceholderText(tr("Events raised by the controls appear here."));
  setAccessibleName(tr("Event log"));
}

void EventLog::add(const QString& source, const QString& event) {
  const QString line = source + QStringLiteral(": ") + event;
  if (line == lastLine_) {
    ++repeats_;
    QTextCursor cursor(document()->lastBlock());
    cursor.select(QTextCursor::BlockUnderCursor);
    cursor.removeSelectedText();
    appendPlainText(QStringLiteral("%1 (x%2)").arg(line).arg(repeats_ + 1));
    return;
  }
  lastLine_ = line;
  repeats_ = 0;
  appendPlainText(line);
}
