#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

/** How an identifier is written. */
enum class EGuidFormats
{
	/** 32 digits. */
	Digits,
	/** 8-4-4-4-12 digits between hyphens. */
	DigitsWithHyphens
};

/** An identifier that is unique everywhere; all zero means none. */
struct FGuid
{
	uint32 A = 0;
	uint32 B = 0;
	uint32 C = 0;
	uint32 D = 0;

	constexpr FGuid() = default;
	constexpr FGuid(uint32 InA, uint32 InB, uint32 InC, uint32 InD) : A(InA), B(InB), C(InC), D(InD) {}

	constexpr bool operator==(const FGuid& Other) const = default;
	constexpr bool IsValid() const { return (A | B | C | D) != 0; }
	void Invalidate() { *this = FGuid(); }

	/** A random one. */
	CORE_API static FGuid NewGuid();
	CORE_API FString ToString(EGuidFormats Format = EGuidFormats::Digits) const;
	/** Reads either form. Returns false, leaving the output alone, for any other text. */
	CORE_API static bool Parse(const FString& GuidString, FGuid& OutGuid);
};

inline uint32 GetTypeHash(const FGuid& Guid)
{
	return Guid.A ^ (Guid.B * 31u) ^ (Guid.C * 961u) ^ (Guid.D * 29791u);
}
