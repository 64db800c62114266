#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lumo {

// The published interface of the library, as data: what a host enumerating the
// controls finds, in order. The Qt layer is checked against it.
struct EnumConstant {
  std::string Name;
  std::int32_t Value;
};

struct PublishedEnum {
  std::string Name;
  std::vector<EnumConstant> Constants;
};

enum class MemberAccess { GetLet, GetOnly, GetSet, LetGet, Method };

struct PublishedMember {
  std::string Name;
  std::string Type;  // "Boolean", "String", "OLE_COLOR", "Font", an enum name, or "" for methods
  MemberAccess Access;
};

struct EventArgument {
  std::string Name;
  std::string Type;  // "OLE_COLOR", "Boolean", "String", "Integer" (16-bit), "Long" (32-bit)
  bool ByRef;
};

struct PublishedEvent {
  std::int32_t Number;  // 1-based identity when raised
  std::string Name;
  std::vector<EventArgument> Arguments;
};

struct PublishedControl {
  std::string Name;           // "ColorCombo"
  std::string Interface;      // "_ColorCombo"
  std::string EventInterface; // "__ColorCombo"
  std::vector<PublishedMember> Members;
  std::vector<PublishedEvent> Events;
};

class TypeLibrary {
 public:
  static const std::string& Name();         // "LumoColorCombo"
  static const std::string& Description();  // "Ostrand ColorCombo"
  static std::int32_t MajorVersion() { return 10; }
  static std::int32_t MinorVersion() { return 0; }
  static std::int32_t Locale() { return 0x409; }

  static const std::vector<PublishedEnum>& Enums();
  // ColorCombo, ColorBox, ColorHexagon, ColorSample, in that order.
  static const std::vector<PublishedControl>& Controls();
  // The control of that name; throws std::out_of_range for an unknown name.
  static const PublishedControl& Control(const std::string& name);
};

}  // namespace lumo
