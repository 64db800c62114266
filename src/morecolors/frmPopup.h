#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "colorhexagon/ColorHexagon.h"
#include "colorhexagon/ColorHexagonEvents.h"
#include "colormodel/FormEvents.h"
#include "colormodel/Types.h"
#include "morecolors/HexColorParser.h"

namespace lumo {

class FormWindow;
class Runtime;

// The modal "More Colors" dialog: a hosted ColorHexagon ("ColorHexagon1"), the
// colour text box "txtColor", the swatches "picNew" and "picCurrent" inside
// "picColorBack", "cmdButton" 0 "Ok" / 1 "Cancel", "cmdCustom" into the system colour
// chooser and the idle "cmdSelect". The outcome goes back through the runtime's
// PopupResult; Color and IsAutomatic live in the hexagon.
//
// Like every form of the library, reaching a property of a dialog that was never
// loaded loads it first.
class frmPopup : public FormEvents, public ColorHexagonEvents {
 public:
  explicit frmPopup(Runtime& runtime);
  frmPopup(const frmPopup&) = delete;
  frmPopup& operator=(const frmPopup&) = delete;
  ~frmPopup() override;

  // The runtime's shared dialog, created and installed when there is none. It is
  // dropped again when the dialog unloads.
  static frmPopup& Instance(Runtime& runtime);

  // Creates the window with its children and the hosted hexagon, then Form_Load.
  // Does nothing while loaded; loads afresh after an unload.
  void Load();
  // Loads if needed and shows modally; returns once the dialog has unloaded.
  void Show();
  bool IsLoaded() const;

  // --- properties ------------------------------------------------------------------------
  OLE_COLOR CurrentColor() const { return currentColor_; }
  void SetCurrentColor(OLE_COLOR color);  // also paints picCurrent
  std::string MoreColorsText();            // the window caption
  void SetMoreColorsText(const std::string& text);
  OLE_COLOR Color();
  void SetColor(OLE_COLOR color);
  bool IsAutomatic();
  void SetIsAutomatic(bool value);
  bool AllowAutomatic() const { return allowAutomatic_; }
  void SetAllowAutomatic(bool allow) { allowAutomatic_ = allow; }
  OLE_COLOR AutoColor() const { return autoColor_; }
  void SetAutoColor(OLE_COLOR color) { autoColor_ = color; }
  const std::string& AutomaticText() const { return automaticText_; }
  void SetAutomaticText(const std::string& text) { automaticText_ = text; }

  // --- procedures --------------------------------------------------------------------------
  // Turns txtColor's text into the colour, or falls back to automatic (when allowed)
  // or black, writing the automatic text into the box.
  void ParseHexText();
  bool InRange(std::string_view text, std::int32_t low, std::int32_t high) const;

  // --- handlers ----------------------------------------------------------------------------
  void Form_Load();
  void SetupColorBox();
  void cmdButton_Click(std::int32_t index);
  void cmdCustom_Click();
  void cmdSelect_Click() {}
  void txtColor_LostFocus();
  void ColorHexagon1_ColorChanged(OLE_COLOR newColor, const std::string& newColorName);
  void ColorHexagon1_ColorClick(OLE_COLOR color, const std::string& colorName);
  void ColorHexagon1_IsAutomaticChanged(bool newValue);

  // FormEvents
  void Form_QueryUnload(bool& cancel, std::int32_t unloadMode) override;
  void Form_Unload() override;
  void ControlClick(const std::string& control, std::int32_t index) override;
  void ControlLostFocus(const std::string& control) override;

  // ColorHexagonEvents, from ColorHexagon1
  void ColorChanged(OLE_COLOR newColor, const std::string& newColorName, const std::string& colorHex) override;
  void IsAutomaticChanged(bool newValue) override;
  void ColorClick(OLE_COLOR color, const std::string& colorName, std::int16_t button, std::int16_t shift,
                  std::int32_t x, std::int32_t y) override;

  // --- for hosts and tests ----------------------------------------------------------------
  // Null until loaded.
  FormWindow* Window() const { return window_.get(); }
  ColorHexagon* Hexagon() const { return hexagon_.get(); }

 private:
  void EnsureLoaded();
  void Fallback();
  void ShowNewColor(OLE_COLOR color, const std::string& name);
  FormWindow& LoadedWindow() const;
  ColorHexagon& LoadedHexagon() const;

  Runtime& runtime_;
  HexColorParser parser_;
  // The window outlives the hexagon drawn on it: declared first, destroyed last.
  std::unique_ptr<FormWindow> window_;
  std::unique_ptr<ColorHexagon> hexagon_;
  OLE_COLOR currentColor_ = 0;
  bool allowAutomatic_ = false;
  OLE_COLOR autoColor_ = 0;
  std::string automaticText_;
};

}  // namespace lumo
