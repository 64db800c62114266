#pragma once

#include <cstdint>
#include <vector>

#include "colormodel/Types.h"

namespace lumo {

// A small picture that a control keeps as data (an icon): its size and the pixels
// that are not transparent, each with its colour. Pixels are listed row by row, left
// to right, so that a run of neighbours of one colour paints as one line.
struct Picture {
  struct Pixel {
    std::int32_t X = 0;
    std::int32_t Y = 0;
    OLE_COLOR Color = 0;
    friend bool operator==(const Pixel&, const Pixel&) = default;
  };

  std::int32_t Width = 0;
  std::int32_t Height = 0;
  std::vector<Pixel> Opaque;

  friend bool operator==(const Picture&, const Picture&) = default;
};

}  // namespace lumo
