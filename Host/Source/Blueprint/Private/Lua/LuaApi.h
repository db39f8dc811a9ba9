#pragma once

// The one door to the scripting library. It is built as C++: its errors unwind the stack, so C++ objects end as they should.
#include <lua.h>

#include <lauxlib.h>
#include <lualib.h>
