#pragma once

#include "Math/TransformCalculus2D.h"

/** How a widget is moved, scaled, sheared and turned when it is drawn and hit; layout knows nothing of it. */
using FSlateRenderTransform = FTransform2f;
