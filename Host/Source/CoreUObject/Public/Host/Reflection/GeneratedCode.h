#pragma once

// What the header tool's code stands on.
#include "Host/Reflection/PropertyFactory.h"
#include "Host/Reflection/ScriptCalls.h"
#include "Host/Reflection/StructOps.h"
#include "Host/Reflection/TypeInfo.h"
#include "UObject/BaseStructures.h"
#include "UObject/Interface.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <cstddef>
#include <utility>
