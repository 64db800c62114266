#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "colormodel/Types.h"

namespace lumo {

// What a colour cell shows: its name, colour, logical position and size. A palette
// builds the faces of its table once per process and every control showing that
// table shares them; a cell whose face is changed gets a face of its own first.
struct CellFace {
  std::string Name;
  OLE_COLOR Color = 0;
  std::int32_t X = 0;
  std::int32_t Y = 0;
  bool IsLarge = false;
};

using FacePtr = std::shared_ptr<const CellFace>;
// The faces of one table, built once per process and shared by every list showing it.
using FaceTable = std::shared_ptr<const std::vector<CellFace>>;

}  // namespace lumo
