#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "SlateColor.generated.h"

class FWidgetStyle;

/** Where a colour comes from. */
UENUM(BlueprintType)
enum class ESlateColorStylingMode : uint8
{
	/** The colour given. */
	UseColor_Specified,
	/** Not offered: treated as the colour given. Kept so that the numbers of the others stay. */
	UseColor_ColorTable UMETA(Hidden),
	/** The foreground colour that ancestors set. */
	UseColor_Foreground UMETA(DisplayName = "Foreground"),
	/** The same, fainter. */
	UseColor_Foreground_Subdued UMETA(DisplayName = "Foreground (Subdued)"),
	/** The colour of the widget's style. */
	UseColor_UseStyle UMETA(DisplayName = "Use Style"),
};

/** A colour, or a rule that takes it from what surrounds a widget. Fuchsia unless set, so that a forgotten one is seen. */
USTRUCT(BlueprintType)
struct SLATECORE_API FSlateColor
{
	GENERATED_BODY()

	FSlateColor() = default;
	FSlateColor(const FLinearColor& InColor) : SpecifiedColor(InColor) {}
	/** An sRGB colour. */
	FSlateColor(const FColor InColor) : SpecifiedColor(FLinearColor(InColor)) {}

	/** The colour that the rule gives under a style; without one the specified colour. */
	FLinearColor GetColor(const FWidgetStyle& InWidgetStyle) const;

	/** The colour given, whatever the rule. */
	FLinearColor GetSpecifiedColor() const { return SpecifiedColor; }

	bool IsColorSpecified() const { return ColorUseRule == ESlateColorStylingMode::UseColor_Specified || ColorUseRule == ESlateColorStylingMode::UseColor_ColorTable; }

	static FSlateColor UseForeground() { return FSlateColor(ESlateColorStylingMode::UseColor_Foreground); }
	static FSlateColor UseSubduedForeground() { return FSlateColor(ESlateColorStylingMode::UseColor_Foreground_Subdued); }
	static FSlateColor UseStyle() { return FSlateColor(ESlateColorStylingMode::UseColor_UseStyle); }

	ESlateColorStylingMode GetColorUseRule() const { return ColorUseRule; }

	bool operator==(const FSlateColor& Other) const { return SpecifiedColor == Other.SpecifiedColor && ColorUseRule == Other.ColorUseRule; }
	bool operator!=(const FSlateColor& Other) const { return !(*this == Other); }

	friend uint32 GetTypeHash(const FSlateColor& Color) { return HashCombine(GetTypeHash(Color.SpecifiedColor), static_cast<uint32>(Color.ColorUseRule)); }

protected:
	explicit FSlateColor(ESlateColorStylingMode InRule) : ColorUseRule(InRule) {}

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Color", meta = (AllowPrivateAccess = "true"))
	FLinearColor SpecifiedColor = FLinearColor(1.0f, 0.0f, 1.0f, 1.0f);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Color", meta = (AllowPrivateAccess = "true"))
	ESlateColorStylingMode ColorUseRule = ESlateColorStylingMode::UseColor_Specified;
};
