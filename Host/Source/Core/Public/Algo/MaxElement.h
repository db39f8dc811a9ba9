#pragma once

#include "Algo/MinElement.h"
