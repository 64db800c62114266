#pragma once

#include <cstdint>

namespace lumo {

// Arrow-key moves over the honeycomb's cell indexes.
class HexagonNavigation {
 public:
  enum Direction : std::int32_t { Left = 1, Right = 2, Up = 3, Down = 4 };

  // The index reached from `index` in `direction`, given `count` cells. Up goes to
  // the upper-left and Down to the lower-right neighbour by fixed index differences
  // per row; where that neighbour does not exist the move runs on into another row
  // (Up from the first cell of rows 2 to 6 lands on the last cell two rows up, Down
  // from row 11's last cell lands on the large white). Those wraps are kept on
  // purpose: hosts rely on the keyboard moving so. Row 12 moves right instead of down; the
  // grey row steps one index back or forth. Up never goes below 1, Down never
  // beyond `count`. An unknown direction answers 0.
  static std::int32_t Next(std::int32_t index, std::int32_t direction, std::int32_t count);

 private:
  static std::int32_t UpFrom(std::int32_t index, std::int32_t count);
  static std::int32_t DownFrom(std::int32_t index, std::int32_t count);
};

}  // namespace lumo
