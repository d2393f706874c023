#pragma once

// The protocol header names a field with a word that C++ keeps for itself. Compilers warn of a macro of
// that name except in headers of the system.
#pragma GCC system_header
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
