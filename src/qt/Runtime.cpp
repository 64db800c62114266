#include <LumoColorCombo/Runtime.h>

#include "qt/QtHost.h"

namespace LumoColorCombo {

Runtime::Runtime() : host_(std::make_unique<host::QtHost>()) {}

Runtime::~Runtime() = default;

}  // namespace LumoColorCombo
