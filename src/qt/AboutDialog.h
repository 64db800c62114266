#pragma once

#include <QDialog>
#include <QUrl>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace LumoColorCombo::host {

// The library's About box: its name and version, the Qt it runs on, whom to contact, the
// system facts a bug report needs (with a button that copies them), and an update check
// that opens the releases page in the browser. The library itself never goes online.
class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  explicit AboutDialog(QWidget* parent = nullptr);

  // Runs the box modally over the window that holds `owner` (over the active window
  // when there is none) and returns once it is closed. The box is a child of that
  // window, so a host that deletes the window meanwhile takes the box with it.
  static void run(QWidget* owner);

  static QString version();
  static QUrl releasesUrl();

 private:
  QWidget* buildSystemInfo();
  QLayout* buildButtons();
  void showSystemInfo(bool shown);
  void copySystemInfo();
  void checkForUpdates();

  QPlainTextEdit* info_ = nullptr;
  QWidget* infoPanel_ = nullptr;
  QLabel* status_ = nullptr;
};

}  // namespace LumoColorCombo::host
