#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"

/** A size in slate units that may be left open. */
struct FOptionalSize
{
	FOptionalSize() = default;
	FOptionalSize(const float SpecifiedSize) : Size(SpecifiedSize) {}
	FOptionalSize(const TOptional<float>& OptionalSize) : Size(OptionalSize.IsSet() ? OptionalSize.GetValue() : Unspecified) {}

	bool IsSet() const { return Size != Unspecified; }

	/** The size, or -1 when it is left open. */
	float Get() const { return Size; }

	bool operator==(const FOptionalSize& Other) const = default;

private:
	static constexpr float Unspecified = -1.0f;
	float Size = Unspecified;
};

/** How a slot of a box panel takes room along the panel. */
struct FSizeParam
{
	enum ESizeRule
	{
		/** The desired size of the content. */
		SizeRule_Auto,
		/** A share of the room that the others leave. */
		SizeRule_Stretch,
	};

	ESizeRule SizeRule;
	/** Share in proportion to the other stretching slots; unused by automatic ones. */
	TAttribute<float> Value;

	bool operator==(const FSizeParam& Other) const
	{
		return SizeRule == Other.SizeRule && Value.Get(1.0f) == Other.Value.Get(1.0f);
	}

protected:
	FSizeParam(ESizeRule InTypeOfSize, TAttribute<float> InValue) : SizeRule(InTypeOfSize), Value(MoveTemp(InValue)) {}
};

/** A slot that shares what room is left. */
struct FStretch : public FSizeParam
{
	FStretch(TAttribute<float> StretchAmount) : FSizeParam(SizeRule_Stretch, MoveTemp(StretchAmount)) {}
	FStretch() : FSizeParam(SizeRule_Stretch, 1.0f) {}
};

/** A slot as large as its content wants to be. */
struct FAuto : public FSizeParam
{
	FAuto() : FSizeParam(SizeRule_Auto, 0.0f) {}
};
