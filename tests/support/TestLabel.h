#pragma once

#include <string>

#include "colormodel/Label.h"

namespace lumo::testing {

// A label that keeps its caption and place.
class TestLabel : public Label {
 public:
  std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override { caption_ = caption; }
  void SetBackColor(OLE_COLOR /*color*/) override {}
  std::int32_t Left() const override { return left_; }
  std::int32_t Top() const override { return top_; }
  std::int32_t Width() const override { return WidthTwips; }
  std::int32_t Height() const override { return HeightTwips; }
  void Move(std::int32_t left, std::int32_t top) override {
    left_ = left;
    top_ = top;
  }

  std::int32_t WidthTwips = 3585;
  std::int32_t HeightTwips = 255;

 private:
  std::string caption_;
  std::int32_t left_ = 0;
  std::int32_t top_ = 3720;
};

}  // namespace lumo::testing
