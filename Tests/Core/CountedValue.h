#pragma once

#include "CoreMinimal.h"

/** A value that keeps count of how many of its kind are alive, and how they came to be. */
struct FCountedValue
{
	static inline int32 NumAlive = 0;
	static inline int32 NumCopies = 0;
	static inline int32 NumMoves = 0;

	static void ResetCounts()
	{
		NumCopies = 0;
		NumMoves = 0;
	}

	FCountedValue(int32 InValue = 0) : Value(InValue) { ++NumAlive; }
	FCountedValue(const FCountedValue& Other) : Value(Other.Value) { ++NumAlive; ++NumCopies; }
	FCountedValue(FCountedValue&& Other) : Value(Other.Value) { Other.Value = -1; ++NumAlive; ++NumMoves; }
	~FCountedValue() { --NumAlive; }

	FCountedValue& operator=(const FCountedValue& Other)
	{
		Value = Other.Value;
		++NumCopies;
		return *this;
	}

	FCountedValue& operator=(FCountedValue&& Other)
	{
		Value = Other.Value;
		Other.Value = -1;
		++NumMoves;
		return *this;
	}

	bool operator==(const FCountedValue& Other) const { return Value == Other.Value; }
	bool operator<(const FCountedValue& Other) const { return Value < Other.Value; }
	friend uint32 GetTypeHash(const FCountedValue& Counted) { return (uint32)Counted.Value; }

	int32 Value;
};
