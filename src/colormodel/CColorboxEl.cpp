#include "colormodel/CColorboxEl.h"

#include "colormodel/CColorboxCol.h"
#include "colormodel/CommonGlobals.h"
#include "colormodel/TextRules.h"

namespace lumo {
namespace {

// The face of a cell made without one: no name, black, at (0, 0), small.
const FacePtr& BlankFace() {
  static const FacePtr blank = std::make_shared<const CellFace>();
  return blank;
}

}  // namespace

CColorboxEl::CColorboxEl(const CommonGlobals& errors) : errors_(errors), face_(BlankFace()) {}

CellFace& CColorboxEl::OwnFace() {
  // A face this cell made is changed in place while nobody else holds it.
  if (!ownsFace_ || face_.use_count() != 1) {
    face_ = std::make_shared<CellFace>(*face_);
    ownsFace_ = true;
  }
  return const_cast<CellFace&>(*face_);
}

void CColorboxEl::SetBounds(std::int32_t left, std::int32_t top, std::int32_t right,
                            std::int32_t bottom) {
  boundLeft_ = left;
  boundTop_ = top;
  boundRight_ = right;
  boundBottom_ = bottom;
}

std::int32_t CColorboxEl::Index() const {
  std::int32_t result = 0;
  errors_.Trap("CColorboxEl", "Index", [&] {
    if (parent_ == nullptr) throw RuntimeError(err::ObjectNotSet);
    // A parent set by hand to a list that does not hold this cell answers 0.
    result = parent_->PositionOf(*this);
  });
  return result;
}

std::string CColorboxEl::SixHexDigits() const {
  const std::string digits = text::Hex(Color());
  return text::Repeat(6 - text::Len(digits), '0') + digits;
}

std::string CColorboxEl::GetColorString() const {
  std::string result;
  errors_.Trap(Name(), "GetColorString", [&] {
    const std::string bgr = SixHexDigits();
    result = bgr.substr(4, 2) + "," + bgr.substr(2, 2) + "," + bgr.substr(0, 2);
  });
  return result;
}

std::string CColorboxEl::GetColorStringHex() const {
  std::string result;
  errors_.Trap(Name(), "GetColorStringHex", [&] {
    const std::string bgr = SixHexDigits();
    result = "#" + bgr.substr(4, 2) + bgr.substr(2, 2) + bgr.substr(0, 2);
  });
  return result;
}

}  // namespace lumo
