#pragma once

#include "CoreMinimal.h"
#include "WidgetStateBitfield.generated.h"

/** A set of the states that a widget can be in, each of them on or off. */
USTRUCT(BlueprintType)
struct UMG_API FWidgetStateBitfield
{
	GENERATED_BODY()

	/** No state. */
	FWidgetStateBitfield() = default;

	/** The one state of the index, from 0 to 15. */
	explicit FWidgetStateBitfield(uint8 BinaryStateIndex)
	{
		SetBinaryState(BinaryStateIndex, true);
	}

	bool HasBinaryStates() const { return BinaryStates != 0; }

	/** True when all states of the other set are in this one. */
	bool HasAllFlags(const FWidgetStateBitfield& InBitfield) const { return (BinaryStates & InBitfield.BinaryStates) == InBitfield.BinaryStates; }

	/** True when any state of the other set is in this one. */
	bool HasAnyFlags(const FWidgetStateBitfield& InBitfield) const { return (BinaryStates & InBitfield.BinaryStates) != 0; }

	/** Puts the state of the index in, or takes it out. */
	void SetBinaryState(uint8 BinaryStateIndex, bool BinaryStateValue)
	{
		SetBinaryStates(static_cast<uint16>(1u << BinaryStateIndex), BinaryStateValue);
	}

	/** Puts the states of the other set in, or takes them out. */
	void SetBinaryState(const FWidgetStateBitfield& InBitfield, bool BinaryStateValue)
	{
		SetBinaryStates(InBitfield.BinaryStates, BinaryStateValue);
	}

	bool operator==(const FWidgetStateBitfield& Other) const = default;

private:
	void SetBinaryStates(uint16 Bits, bool bValue)
	{
		BinaryStates = static_cast<uint16>(bValue ? BinaryStates | Bits : BinaryStates & ~Bits);
	}

	/** A bit for each state. */
	UPROPERTY()
	uint16 BinaryStates = 0;
};
