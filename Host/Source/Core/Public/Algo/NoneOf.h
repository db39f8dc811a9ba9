#pragma once

#include "Algo/AnyOf.h"
