#pragma once

#include <gtest/gtest.h>

#include <string>

#include "morecolors/frmPopup.h"
#include "support/TestHost.h"

namespace lumo::testing {

// A loaded shared dialog on the headless host, and its form's children by name.
class PopupFixture : public ::testing::Test {
 protected:
  TestHost host;
  frmPopup& dialog = frmPopup::Instance(host.Runtime);

  void SetUp() override { dialog.Load(); }
  TestForm& Form() const { return *host.Windows.LastForm("frmPopup"); }
  std::string BoxText() const { return Form().TextBoxNamed("txtColor").Text(); }
  OLE_COLOR Swatch(const std::string& name) const { return Form().RecordingSurfaceNamed(name).BackColor(); }
  void Type(const std::string& text) {
    Form().TextBoxNamed("txtColor").SetText(text);
    Form().LeaveControl("txtColor");
  }
};

}  // namespace lumo::testing
