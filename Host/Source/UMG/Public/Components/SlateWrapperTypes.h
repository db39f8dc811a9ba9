#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Layout/Visibility.h"
#include "SlateWrapperTypes.generated.h"

/** Whether a widget shows, takes room and can be hit. */
UENUM(BlueprintType)
enum class ESlateVisibility : uint8
{
	/** Visible and hit-testable. */
	Visible = 0,
	/** Not visible and takes up no room. */
	Collapsed = 1,
	/** Not visible but takes up room. */
	Hidden = 2,
	/** Visible, but neither it nor its children can be hit. */
	HitTestInvisible = 3 UMETA(DisplayName = "Not Hit-Testable (Self & All Children)"),
	/** Visible, its children can be hit, it cannot. */
	SelfHitTestInvisible = 4 UMETA(DisplayName = "Not Hit-Testable (Self Only)")
};

/** How a slot of a box gets its share of the room. */
UENUM(BlueprintType)
namespace ESlateSizeRule
{
	enum Type : int
	{
		/** Only as much room as the widget asks for. */
		Automatic,
		/** A share of the room that is left, by weight. */
		Fill
	};
}

/** Size of a slot along its box. */
USTRUCT(BlueprintType)
struct UMG_API FSlateChildSize
{
	GENERATED_BODY()

	/** Share of the room under the fill rule, relative to the other slots' values. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (UIMin = "0", UIMax = "1"))
	float Value = 1.0f;

	/** The rule of sizing. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	TEnumAsByte<ESlateSizeRule::Type> SizeRule = ESlateSizeRule::Fill;

	FSlateChildSize() = default;
	FSlateChildSize(ESlateSizeRule::Type InSizeRule)
		: SizeRule(InSizeRule)
	{
	}
};

/** What a graph answers to an input event. */
USTRUCT(BlueprintType)
struct UMG_API FEventReply
{
	GENERATED_BODY()

	FReply NativeReply;

	FEventReply(bool bIsHandled = false)
		: NativeReply(bIsHandled ? FReply::Handled() : FReply::Unhandled())
	{
	}
};
