#pragma once

#include "Algo/Sort.h"
