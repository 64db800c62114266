#include <gtest/gtest.h>

#include <set>
#include <string>

#include "colormodel/Enums.h"
#include "colormodel/TypeLibrary.h"

namespace lumo {
namespace {

TEST(TypeLibrary, EventsAreNumberedFromOneInOrder) {
  for (const auto& control : TypeLibrary::Controls()) {
    std::int32_t expected = 1;
    for (const auto& event : control.Events) EXPECT_EQ(event.Number, expected++) << control.Name << "." << event.Name;
  }
}

TEST(TypeLibrary, OnlyTheCancelAndClickOutArgumentsAreByReference) {
  std::set<std::string> byRef;
  for (const auto& control : TypeLibrary::Controls()) {
    for (const auto& event : control.Events) {
      for (const auto& argument : event.Arguments) {
        if (argument.ByRef) byRef.insert(control.Name + "." + event.Name + "." + argument.Name);
      }
    }
  }
  EXPECT_EQ(byRef, (std::set<std::string>{"ColorCombo.BeforeColorChanged.Cancel",
                                          "ColorCombo.BeforeIsAutomaticChanged.Cancel",
                                          "ColorCombo.BeforeDropDown.Cancel", "ColorBox.Click.lColor",
                                          "ColorBox.Click.bIsAutomatic"}));
}

TEST(TypeLibrary, InterfaceNamesFollowTheControlName) {
  for (const auto& control : TypeLibrary::Controls()) {
    EXPECT_EQ(control.Interface, "_" + control.Name);
    EXPECT_EQ(control.EventInterface, "__" + control.Name);
  }
  EXPECT_THROW(TypeLibrary::Control("NoSuchControl"), std::out_of_range);
}

TEST(TypeLibrary, PublishedEnumValuesMatchTheCompiledEnumerations) {
  const auto find = [](const std::string& enumName, const std::string& constant) {
    for (const auto& e : TypeLibrary::Enums()) {
      if (e.Name != enumName) continue;
      for (const auto& c : e.Constants) {
        if (c.Name == constant) return c.Value;
      }
    }
    return -1;
  };
  EXPECT_EQ(find("ComboPickStyles", "cpsPalette40"), cpsPalette40);
  EXPECT_EQ(find("ComboPickStyles", "cpsPaletteBlue16"), cpsPaletteBlue16);
  EXPECT_EQ(find("OpenEffectConstants", "oecUnfold"), oecUnfold);
  EXPECT_EQ(find("CCStyleConstants", "cscButtonNoText"), cscButtonNoText);
  EXPECT_EQ(find("KDBorderConstants", "bcFixedSingle"), bcFixedSingle);
  for (const auto& e : TypeLibrary::Enums()) {
    std::set<std::int32_t> values;
    for (const auto& c : e.Constants) EXPECT_TRUE(values.insert(c.Value).second) << e.Name << " repeats " << c.Value;
  }
}

}  // namespace
}  // namespace lumo
