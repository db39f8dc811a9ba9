#pragma once

// The one door to OpenGL: functions are found when first called, so a program that never draws with it loads nothing.
#include <epoxy/gl.h>
