#pragma once

// All kinds of properties, and what goes with them.
#include "UObject/ContainerHelpers.h"
#include "UObject/ContainerProperty.h"
#include "UObject/DelegateProperty.h"
#include "UObject/EnumProperty.h"
#include "UObject/FieldIterator.h"
#include "UObject/NumericProperty.h"
#include "UObject/ObjectProperty.h"
#include "UObject/Property.h"
#include "UObject/PropertyChangedEvent.h"
#include "UObject/StringProperty.h"
#include "UObject/StructProperty.h"
