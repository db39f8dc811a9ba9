#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "Range.generated.h"

/** How a range ends on one side. */
UENUM(BlueprintType)
namespace ERangeBoundTypes
{
	enum Type : int
	{
		/** The value itself is outside. */
		Exclusive,
		/** The value itself is inside. */
		Inclusive,
		/** There is no end on this side; the value is ignored. */
		Open
	};
}

/** One end of a range of integers. */
USTRUCT(BlueprintType)
struct SLATECORE_API FInt32RangeBound
{
	GENERATED_BODY()

	FInt32RangeBound() = default;
	FInt32RangeBound(int32 InValue) : Type(ERangeBoundTypes::Inclusive), Value(InValue) {}

	static FInt32RangeBound Exclusive(int32 InValue);
	static FInt32RangeBound Inclusive(int32 InValue);
	static FInt32RangeBound Open();

	bool IsOpen() const { return Type == ERangeBoundTypes::Open; }
	bool IsInclusive() const { return Type == ERangeBoundTypes::Inclusive; }
	bool IsExclusive() const { return Type == ERangeBoundTypes::Exclusive; }
	int32 GetValue() const { return Value; }

	bool operator==(const FInt32RangeBound& Other) const;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Range)
	TEnumAsByte<ERangeBoundTypes::Type> Type = ERangeBoundTypes::Exclusive;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Range)
	int32 Value = 0;
};

/** A contiguous set of integers. The default one is empty. */
USTRUCT(BlueprintType)
struct SLATECORE_API FInt32Range
{
	GENERATED_BODY()

	FInt32Range() = default;
	FInt32Range(const FInt32RangeBound& InLowerBound, const FInt32RangeBound& InUpperBound)
		: LowerBound(InLowerBound), UpperBound(InUpperBound)
	{
	}

	/** Both ends included. */
	static FInt32Range Inclusive(int32 Min, int32 Max);
	static FInt32Range All();

	bool Contains(int32 Element) const;
	const FInt32RangeBound& GetLowerBound() const { return LowerBound; }
	const FInt32RangeBound& GetUpperBound() const { return UpperBound; }
	void SetLowerBound(const FInt32RangeBound& NewLowerBound) { LowerBound = NewLowerBound; }
	void SetUpperBound(const FInt32RangeBound& NewUpperBound) { UpperBound = NewUpperBound; }

	bool operator==(const FInt32Range& Other) const;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Range)
	FInt32RangeBound LowerBound;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Range)
	FInt32RangeBound UpperBound;
};
