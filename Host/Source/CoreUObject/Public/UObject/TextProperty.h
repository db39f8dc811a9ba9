#pragma once

#include "UObject/StringProperty.h"
