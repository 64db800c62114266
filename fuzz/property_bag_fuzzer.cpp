// Fuzzes the Qt host's property-bag text (QtPropertyBag::fromText, JSON) and the controls'
// typed reads over what it loads:
// - any text loads, as a bag or as an empty one;
// - every typed read of every stored key gives a value, or a type mismatch (13) or an
//   overflow (6) that the control's ReadProperties trap reports; nothing else escapes;
// - every value the controls can read, saved again (toText) and loaded back, reads the same.
#include <cstddef>
#include <cstdint>
#include <string>

#include <QByteArray>
#include <QString>

#include "FuzzCheck.h"
#include "colormodel/RuntimeError.h"
#include "qt/QtPropertyBag.h"

namespace {

using LumoColorCombo::host::QtPropertyBag;
using lumo::fuzz::Require;

template <class Read>
void CheckTypedRead(Read read) {
  try {
    read();
  } catch (const lumo::RuntimeError& e) {
    Require(e.Number() == lumo::err::TypeMismatch || e.Number() == lumo::err::Overflow,
            "a value that does not convert is a type mismatch or an overflow");
  }
}

void CheckTypedReads(const QtPropertyBag& bag, const std::string& key) {
  CheckTypedRead([&] { bag.ReadBoolean(key, false); });
  CheckTypedRead([&] { bag.ReadLong(key, 0); });
  CheckTypedRead([&] { bag.ReadText(key, {}); });
  CheckTypedRead([&] { bag.ReadFont(key, lumo::StdFont{}); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QString text = QString::fromUtf8(QByteArray(reinterpret_cast<const char*>(data),
                                                    static_cast<qsizetype>(size)));
  const QtPropertyBag loaded = QtPropertyBag::fromText(text);

  QtPropertyBag saved;
  for (const QString& name : loaded.values().keys()) {
    const std::string key = name.toStdString();
    CheckTypedReads(loaded, key);
    // An empty default: a value the controls cannot read is "absent" both times.
    saved.WriteProperty(key, loaded.ReadProperty(key, lumo::Variant()), lumo::Variant());
  }

  const QtPropertyBag reloaded = QtPropertyBag::fromText(saved.toText());
  for (const QString& name : loaded.values().keys()) {
    const std::string key = name.toStdString();
    Require(reloaded.ReadProperty(key, lumo::Variant()) == loaded.ReadProperty(key, lumo::Variant()),
            "a saved value loads back the same");
  }
  return 0;
}
