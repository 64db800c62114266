#include "colormodel/TypeLibrary.h"

#include <stdexcept>

namespace lumo {
namespace {

constexpr MemberAccess GetLet = MemberAccess::GetLet;
constexpr MemberAccess Method = MemberAccess::Method;

EventArgument ByVal(std::string name, std::string type) { return {std::move(name), std::move(type), false}; }
EventArgument ByRef(std::string name, std::string type) { return {std::move(name), std::move(type), true}; }

PublishedControl MakeColorCombo() {
  return {"ColorCombo", "_ColorCombo", "__ColorCombo",
          {{"AllowHotTracking", "Boolean", GetLet},
           {"AllowAutoColorBox", "Boolean", GetLet},
           {"Caption", "String", GetLet},
           {"Style", "CCStyleConstants", GetLet},
           {"OpenEffect", "OpenEffectConstants", GetLet},
           {"PickStyle", "ComboPickStyles", GetLet},
           {"Enabled", "Boolean", GetLet},
           {"AboutBox", "", Method},
           {"AutomaticText", "String", GetLet},
           {"MoreColorsText", "String", GetLet},
           {"IsAutomatic", "Boolean", GetLet},
           {"AutoColor", "OLE_COLOR", GetLet},
           {"Color", "OLE_COLOR", GetLet},
           {"ForeColor", "OLE_COLOR", GetLet},
           {"BackColor", "OLE_COLOR", GetLet},
           {"Font", "Font", MemberAccess::GetSet},
           {"AllowAutomatic", "Boolean", GetLet},
           {"AllowMoreColors", "Boolean", GetLet},
           {"Refresh", "", Method}},
          {{1, "BeforeColorChanged", {ByVal("Color", "OLE_COLOR"), ByRef("Cancel", "Boolean")}},
           {2, "AfterColorChanged", {ByVal("Color", "OLE_COLOR")}},
           {3, "BeforeIsAutomaticChanged", {ByVal("Value", "Boolean"), ByRef("Cancel", "Boolean")}},
           {4, "AfterIsAutomaticChanged", {ByVal("Value", "Boolean")}},
           {5, "BeforeDropDown", {ByRef("Cancel", "Boolean")}},
           {6, "AfterDropUp", {}},
           {7, "DblClick", {}}}};
}

PublishedControl MakeColorBox() {
  return {"ColorBox", "_ColorBox", "__ColorBox",
          {{"PickStyle", "ComboPickStyles", GetLet},
           {"ColorName", "String", MemberAccess::GetOnly},
           {"AutoColor", "OLE_COLOR", GetLet},
           {"AutomaticText", "String", GetLet},
           {"MoreColorsText", "String", GetLet},
           {"IsAutomatic", "Boolean", GetLet},
           {"Color", "OLE_COLOR", GetLet},
           {"AllowAutomatic", "Boolean", GetLet},
           {"AllowMoreColors", "Boolean", GetLet},
           {"Refresh", "", Method}},
          {{1, "OverColor", {ByVal("lColor", "OLE_COLOR"), ByVal("bOverAutomatic", "Boolean")}},
           {2, "Click",
            {ByRef("lColor", "OLE_COLOR"), ByVal("sColorName", "String"), ByRef("bIsAutomatic", "Boolean")}},
           {3, "MoreColorClick", {}},
           {4, "UserCancel", {}},
           {5, "Resize", {}}}};
}

std::vector<EventArgument> PointerArguments() {
  return {ByVal("Color", "OLE_COLOR"), ByVal("ColorName", "String"), ByVal("Button", "Integer"),
          ByVal("Shift", "Integer"),   ByVal("X", "Long"),            ByVal("Y", "Long")};
}

PublishedControl MakeColorHexagon() {
  return {"ColorHexagon", "_ColorHexagon", "__ColorHexagon",
          {{"BackColor", "OLE_COLOR", GetLet},
           {"AutoColor", "OLE_COLOR", GetLet},
           {"AutomaticText", "String", GetLet},
           {"IsAutomatic", "Boolean", GetLet},
           {"Refresh", "", Method},
           {"Color", "OLE_COLOR", GetLet}},
          {{1, "ColorChanged",
            {ByVal("NewColor", "OLE_COLOR"), ByVal("NewColorName", "String"), ByVal("ColorHex", "String")}},
           {2, "IsAutomaticChanged", {ByVal("NewValue", "Boolean")}},
           {3, "ColorClick", PointerArguments()},
           {4, "ColorDblClick", {ByVal("Color", "OLE_COLOR"), ByVal("ColorName", "String")}},
           {5, "ColorOver", PointerArguments()}}};
}

PublishedControl MakeColorSample() {
  return {"ColorSample", "_ColorSample", "__ColorSample",
          {{"AboutBox", "", Method},
           {"BackColor", "OLE_COLOR", GetLet},
           {"BorderStyle", "KDBorderConstants", MemberAccess::LetGet},
           {"Font", "Font", MemberAccess::GetSet},
           {"Refresh", "", Method},
           {"Text", "String", GetLet},
           {"ForeColor", "OLE_COLOR", GetLet}},
          {}};
}

}  // namespace

const std::string& TypeLibrary::Name() {
  static const std::string name = "LumoColorCombo";
  return name;
}

const std::string& TypeLibrary::Description() {
  static const std::string description = "Ostrand ColorCombo";
  return description;
}

const std::vector<PublishedEnum>& TypeLibrary::Enums() {
  static const std::vector<PublishedEnum> enums = {
      {"ComboPickStyles",
       {{"cpsStandard", 0}, {"cpsStandardWithBW", 1}, {"cpsGreyScale16", 2}, {"cpsGreyScale256", 3},
        {"cpsPalette48", 4}, {"cpsPalette48WithBW", 5}, {"cpsPalette256", 6}, {"cpsPalette256WithBW", 7},
        {"cpsPaletteRed256", 8}, {"cpsPaletteGreen256", 9}, {"cpsPaletteBlue256", 10},
        {"cpsPaletteRed16", 11}, {"cpsPaletteGreen16", 12}, {"cpsPaletteBlue16", 13}, {"cpsPalette40", 14}}},
      {"OpenEffectConstants", {{"oecNone", 0}, {"oecSlide", 1}, {"oecUnfold", 2}}},
      {"CCStyleConstants", {{"cscDropDown", 0}, {"cscCombobox", 1}, {"cscButton", 2}, {"cscButtonNoText", 3}}},
      {"KDBorderConstants", {{"bcNone", 0}, {"bcFixedSingle", 1}}},
  };
  return enums;
}

const std::vector<PublishedControl>& TypeLibrary::Controls() {
  static const std::vector<PublishedControl> controls = {MakeColorCombo(), MakeColorBox(),
                                                         MakeColorHexagon(), MakeColorSample()};
  return controls;
}

const PublishedControl& TypeLibrary::Control(const std::string& name) {
  for (const auto& control : Controls()) {
    if (control.Name == name) return control;
  }
  throw std::out_of_range("no published control named " + name);
}

}  // namespace lumo
