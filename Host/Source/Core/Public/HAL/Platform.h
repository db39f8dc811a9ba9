#pragma once

#include <cstddef>
#include <cstdint>

// Fixed-width types under the engine's names.
typedef std::uint8_t uint8;
typedef std::uint16_t uint16;
typedef std::uint32_t uint32;
typedef std::uint64_t uint64;
typedef std::int8_t int8;
typedef std::int16_t int16;
typedef std::int32_t int32;
typedef std::int64_t int64;

typedef std::uintptr_t UPTRINT;
typedef std::intptr_t PTRINT;
typedef std::size_t SIZE_T;
typedef std::ptrdiff_t SSIZE_T;
typedef decltype(nullptr) TYPE_OF_NULLPTR;

/** A character of an 8-bit literal; ASCII wherever text is made of it. */
typedef char ANSICHAR;
typedef char8_t UTF8CHAR;
typedef char16_t UTF16CHAR;
typedef char32_t UTF32CHAR;
typedef char16_t UCS2CHAR;
typedef char16_t WIDECHAR;
/** A code unit of UTF-16. It is no wchar_t and no char, so that a forgotten TEXT() fails to compile. */
typedef char16_t TCHAR;

#define UE_TEXT_PASTE(Literal) u##Literal
/** A literal of TCHARs. */
#define TEXT(Literal) UE_TEXT_PASTE(Literal)

#define PLATFORM_LINUX 1
#define PLATFORM_WINDOWS 0
#define PLATFORM_MAC 0
#define PLATFORM_DESKTOP 1
#define PLATFORM_64BITS 1
#define PLATFORM_LITTLE_ENDIAN 1

#define UE_BUILD_DEBUG 0
#define UE_BUILD_DEVELOPMENT 1
#define UE_BUILD_TEST 0
#define UE_BUILD_SHIPPING 0
#define WITH_EDITOR 1
#define WITH_EDITORONLY_DATA 1
#define WITH_CASE_PRESERVING_NAME 1
#define DO_CHECK 1
#define DO_ENSURE 1

#define FORCEINLINE inline __attribute__((always_inline))
#define FORCENOINLINE __attribute__((noinline))
#define UE_NODEBUG
#define RESTRICT __restrict
#define LIKELY(Condition) __builtin_expect(!!(Condition), 1)
#define UNLIKELY(Condition) __builtin_expect(!!(Condition), 0)
#define UE_FORCEINLINE_HINT inline
#define VARARGS
#define CDECL
#define DLLEXPORT
#define DLLIMPORT
#define LINE_TERMINATOR TEXT("\n")
