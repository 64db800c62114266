#include "colormodel/CommonGlobals.h"

#include <variant>

#include "colormodel/ControlSite.h"
#include "colormodel/TextRules.h"

namespace lumo {
namespace {

constexpr const char* kLineEnd = "\r\n";

}  // namespace

std::string CommonGlobals::ErrorMessage(std::int32_t number, std::string_view description,
                                        std::string_view module, std::string_view procedure,
                                        const std::optional<Variant>& customText) {
  const std::string tail = std::string(description) + kLineEnd;
  if (customText) return customText->ToText() + kLineEnd + tail;
  return "Error Number: " + text::Decimal(number) + kLineEnd +  //
         "Module: " + std::string(module) + kLineEnd +          //
         "Procedure: " + std::string(procedure) + kLineEnd +    //
         kLineEnd + tail;
}

void CommonGlobals::ReportError(std::int32_t number, std::string_view description,
                                std::string_view module, std::string_view procedure,
                                const std::optional<Variant>& customText) const noexcept {
  std::string message;
  try {
    message = ErrorMessage(number, description, module, procedure, customText);
  } catch (...) {
    // Carry on with whatever could be built: reporting never fails into a second report.
  }
  try {
    messageBox_.MsgBox(message, ErrorStyle, ErrorTitle);
  } catch (...) {
  }
}

RuntimeError CommonGlobals::CurrentError() noexcept {
  try {
    throw;
  } catch (const RuntimeError& e) {
    return e;
  } catch (const std::bad_alloc&) {
    return RuntimeError(err::OutOfMemory);
  } catch (const std::out_of_range&) {
    return RuntimeError(err::IndexOutOfRange);
  } catch (const std::overflow_error&) {
    return RuntimeError(err::Overflow);
  } catch (const std::invalid_argument&) {
    return RuntimeError(err::InvalidArgument);
  } catch (const std::bad_variant_access&) {
    return RuntimeError(err::TypeMismatch);
  } catch (const std::exception& e) {
    return RuntimeError(err::Internal, e.what());
  } catch (...) {
    return RuntimeError(err::Internal);
  }
}

void CommonGlobals::ReportCurrentException(std::string_view module,
                                           std::string_view procedure) const noexcept {
  try {
    const RuntimeError error = CurrentError();
    ReportError(error.Number(), error.Description(), module, procedure);
  } catch (...) {
  }
}

void CommonGlobals::NotifyChanged(ControlSite& site, std::string_view label) noexcept {
  IgnoreErrors([&] { site.PropertyChanged(std::string(label)); });
}

}  // namespace lumo
