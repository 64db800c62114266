#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "colormodel/ControlEvents.h"
#include "colormodel/StdFont.h"
#include "colormodel/Types.h"

namespace lumo {

class ControlSite;
class DrawingSurface;
class PropertyBag;
class Runtime;

// The sample box: one line of text in a chosen colour on a chosen background, centred
// on `picScreen`, with an optional one-pixel black frame. It raises no events and takes
// no input; a host places it beside a colour picker to preview a colour pair.
//
// Every procedure traps its own failures and reports them under the module
// "ColorSample"; nothing is thrown to the host.
class ColorSample : public ControlEvents {
 public:
  // Attaches to the site and runs UserControl_Initialize, so a new control is painted at once.
  ColorSample(Runtime& runtime, DrawingSurface& picScreen, ControlSite& site);
  ColorSample(const ColorSample&) = delete;
  ColorSample& operator=(const ColorSample&) = delete;
  // Runs UserControl_Terminate and detaches from the site.
  ~ColorSample() override;

  // --- members (published order of the type library) ----------------------------------
  // Shows the library's About box modally over the control's window.
  void AboutBox() const;
  OLE_COLOR BackColor() const { return m_BackColor; }
  void SetBackColor(OLE_COLOR value);
  // Stored unchecked: a value other than bcNone and bcFixedSingle is kept, saved and
  // read back as it is, and draws no frame.
  std::int32_t BorderStyle() const { return m_BorderStyle; }
  void SetBorderStyle(std::int32_t value);
  // Empty only while the host has neither placed nor loaded the control.
  std::optional<StdFont> Font() const;
  // No font stands for the host's ambient font, which is what gets stored.
  void SetFont(const std::optional<StdFont>& value);
  // Clears to BackColor, prints Text centred in ForeColor, then frames it.
  void Refresh();
  const std::string& Text() const { return m_Text; }
  void SetText(const std::string& value);
  OLE_COLOR ForeColor() const { return m_ForeColor; }
  void SetForeColor(OLE_COLOR value);

  // --- life cycle ------------------------------------------------------------------------
  void UserControl_Initialize();
  void UserControl_InitProperties() override;
  void UserControl_ReadProperties(const PropertyBag& bag) override;
  void UserControl_WriteProperties(PropertyBag& bag) const override;
  // Covers the control with picScreen and redraws; failures are ignored.
  void UserControl_Resize() override;
  void UserControl_Terminate();

 private:
  template <class Body>
  void Trap(std::string_view label, Body&& body) const;
  template <class Body>
  void TrapAndNotify(std::string_view label, Body&& body);

  void SetInitialState();
  void DrawBorder();

  Runtime& runtime_;
  DrawingSurface& picScreen;  // the drawing surface keeps its platform name
  ControlSite& site_;
  // Expires with the control: a procedure whose host deletes the control midway
  // reports and notifies nothing.
  std::shared_ptr<bool> m_Alive = std::make_shared<bool>(true);

  OLE_COLOR m_BackColor = 0;
  OLE_COLOR m_ForeColor = 0;
  std::string m_Text;
  std::optional<StdFont> m_Font;
  std::int32_t m_BorderStyle = 0;
};

}  // namespace lumo
