#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Fonts/SlateFontInfo.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "HalvexStyleModels.generated.h"

class UBorder;
class UButton;
class UFont;
class UTextBlock;
struct FButtonStyle;

/** COLOR TYPE */
UENUM(BlueprintType)
enum class EColorHandlerMode : uint8
{
	ECHM_ColorStyle = 0 UMETA(DisplayName = "Color Style"),
	ECHM_ColorSimple = 1 UMETA(DisplayName = "Color Simple"),
	ECHM_ColorCustom = 2 UMETA(DisplayName = "Custom Color"),
	ECHM_Disable = 3 UMETA(DisplayName = "Disable Color")
};

/** A reference to a colour: one of the project's style by identifier, or a custom one. */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FHalvexColorHandler
{
	GENERATED_BODY()

	/** Where the colour comes from. A widget whose mode is "Disable Color" keeps the colours it has. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexColorHandler")
	EColorHandlerMode ColorMode = EColorHandlerMode::ECHM_ColorStyle;

	/** Takes the contrast variant of a style colour. Simple and custom colours have none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexColorHandler")
	bool bUseContrast = false;

	/** Identifier of the colour in the style configuration. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexColorHandler", meta = (EditCondition = "ColorMode!=EColorHandlerMode::ECHM_ColorCustom", EditConditionHides))
	FName ColorID = TEXT("Primary");

	/** The colour in custom mode, linear. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexColorHandler", meta = (EditCondition = "ColorMode==EColorHandlerMode::ECHM_ColorCustom", EditConditionHides))
	FLinearColor ColorCustom = FLinearColor::White;

	/** Replaces the alpha of the colour, whatever its mode, by Opacity Override. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexColorHandler", meta = (InlineEditConditionToggle))
	bool bOverrideOpacity = false;

	/** Alpha to use instead of the colour's own, from 0 (transparent) to 1 (opaque). */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexColorHandler", meta = (EditCondition = "bOverrideOpacity"))
	float OpacityOverride = 1.0f;

	FHalvexColorHandler() = default;
	FHalvexColorHandler(const FName InColorID, const bool bInUseContrast);

	/** The handler that text uses unless told otherwise: the contrast of "Secondary". */
	static FHalvexColorHandler TextColorHandler();

	/** The colour referred to, linear; transparent black where the project's style does not have it. */
	FLinearColor GetColor() const;

	/** The other variant of the colour: what GetColor() gives with the contrast flag inverted. */
	FLinearColor GetContrastColor() const;

	/** GetColor() as a specified Slate colour. */
	FSlateColor GetColorSlate() const;

	/** GetContrastColor() as a specified Slate colour. */
	FSlateColor GetContrastColorSlate() const;

private:
	FLinearColor ResolveColor(const bool bContrast) const;
};

/** A style colour in its two variants. */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FColorKeyValues
{
	GENERATED_BODY()

	/** The colour itself, linear. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ColorKeyValues")
	FLinearColor RegularColor = FLinearColor::White;

	/** What is readable on the colour, linear. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ColorKeyValues")
	FLinearColor ContrastColor = FLinearColor::Gray;

	FColorKeyValues() = default;
	FColorKeyValues(const FLinearColor& InRegularColor, const FLinearColor& InContrastColor);
};

/** FONT TYPES */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FHalvexFontSize
{
	GENERATED_BODY()

	/** Size in points at 96 dots an inch. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexFontSize", meta = (ClampMin = "1"))
	int32 FontSize = 21;

	/** Typeface inside the project's font. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexFontSize")
	FName Typeface = TEXT("regular");

	FHalvexFontSize() = default;
	FHalvexFontSize(const int32 InFontSize, const FName InTypeface);
};

/** The font family of the project and the sizes in which it is used. */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FHalvexFontStyle
{
	GENERATED_BODY()

	/** The font of all text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexFontSchema", meta = (AllowedClasses = "/Script/Engine.Font"))
	TObjectPtr<UFont> Font = nullptr;

	/** Size and typeface by the name of the font schema. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexFontSchema")
	TMap<FName, FHalvexFontSize> FontSizing;
};

/** BORDER */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FHalvexCornerStyle
{
	GENERATED_BODY()

	/** Rounds all four corners alike. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexCornerStyle")
	bool bUseUniformCorner = true;

	/** Radius of all corners, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexCornerStyle", meta = (EditCondition = "bUseUniformCorner", EditConditionHides))
	float UniformCorner = 5.0f;

	/** Radius of each corner, in Slate units: X top-left, Y top-right, Z bottom-right, W bottom-left. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexCornerStyle", meta = (EditCondition = "!bUseUniformCorner", EditConditionHides))
	FVector4 CornerRadius = FVector4(5.0, 5.0, 5.0, 5.0);

	/** Whether the radii count, or half of the drawn height does. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexCornerStyle")
	TEnumAsByte<ESlateBrushRoundingType::Type> RoundingType = ESlateBrushRoundingType::FixedRadius;

	/** Makes the brush a rounded box with these corners; its colours and image stay. */
	void SetCornerBrush(FSlateBrush& Brush) const;

	/** Rounds the normal, hovered and pressed brushes. The disabled brush keeps its shape: callers rely on it. */
	void SetCornerBrushButton(FButtonStyle& ButtonStyle) const;
};

/** SixeOverride */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FHalvexSizeOverride
{
	GENERATED_BODY()

	/** Uses Size Override instead of the size that the content asks for. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexSizeOverride")
	bool bUseOverride = true;

	/** Width and height in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexSizeOverride")
	FVector2D SizeOverride = FVector2D(0.0, 0.0);

	/** Holds the content to Aspect Ratio. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexSizeOverride", meta = (InlineEditConditionToggle))
	bool bUseAspectRatio = false;

	/** Width divided by height. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexSizeOverride", meta = (EditCondition = "bUseAspectRatio"))
	float AspectRatio = 1.0f;
};

/** Components Styles */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FHalvexTextStyle
{
	GENERATED_BODY()

	/** Colour of the text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexTextStyleSchema")
	FHalvexColorHandler ColorStyle;

	/** Font schema of the project's font style. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexTextStyleSchema")
	FName FontSchema = NAME_None;
};

/** Look of a border: colour, opacity and corners. */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FHalvexBorderStyle
{
	GENERATED_BODY()

	/** Colour of the fill; its own opacity override is not used here, Opacity is. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexBorderStyleSchema")
	FHalvexColorHandler ColorStyle = FHalvexColorHandler(TEXT("Background"), false);

	/** Alpha of the fill, from 0 (transparent) to 1 (opaque). */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexBorderStyleSchema")
	float Opacity = 1.0f;

	/** Whether the radii count, or half of the drawn height does. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexBorderStyleSchema")
	TEnumAsByte<ESlateBrushRoundingType::Type> RoundType = ESlateBrushRoundingType::FixedRadius;

	/** Rounds all four corners alike. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexBorderStyleSchema")
	bool bUniformCorner = true;

	/** Radius of all corners, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexBorderStyleSchema")
	float UniformBorder = 5.0f;

	/** Radius of each corner, in Slate units: X top-left, Y top-right, Z bottom-right, W bottom-left. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexBorderStyleSchema")
	FVector4 CornerBorder = FVector4(5.0, 5.0, 5.0, 5.0);
};

/** Look of a button: colour, corners, size and opacity. */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FHalvexButtonStyle
{
	GENERATED_BODY()

	/** Colour of the button's face. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButtonStyle")
	FHalvexColorHandler ColorStyle = FHalvexColorHandler(TEXT("Background"), false);

	/** Corners of the button's face. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButtonStyle")
	FHalvexCornerStyle CornerStyle;

	/** Fixed size of the button, if any. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButtonStyle")
	FHalvexSizeOverride SizeOverride;

	/** Alpha of the button's face, from 0 (transparent) to 1 (opaque). */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButtonStyle")
	float Opacity = 1.0f;
};

/** FONT ICON TYPES */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FFontIconDatatableRow : public FTableRowBase
{
	GENERATED_BODY()

	/** Human-readable name of the icon. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FontIconDatable")
	FString Label;

	/** Typefaces in which the icon exists. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FontIconDatable")
	TArray<FName> Styles;

	/** Search terms. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FontIconDatable")
	TArray<FName> Search;

	/** The glyph itself: the text to draw with the icon font. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FontIconDatable")
	FString Unicode;
};

/** One registered icon font. */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FFontIconData
{
	GENERATED_BODY()

	/** The font that has the glyphs. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FontIcon", meta = (AllowedClasses = "/Script/Engine.Font"))
	TObjectPtr<UFont> Font = nullptr;

	/** Table of the font's icons: a row an icon, named for it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FontIcon", meta = (RequiredAssetDataTags = "RowStructure=/Script/HalvexProUI.FontIconDatatableRow"))
	TObjectPtr<UDataTable> FontIconList = nullptr;

	FFontIconData() = default;
	FFontIconData(const FFontIconData&) = default;
	FFontIconData(FFontIconData&&) = default;
	FFontIconData& operator=(const FFontIconData&) = default;
	FFontIconData& operator=(FFontIconData&&) = default;
	virtual ~FFontIconData() = default;

	/** Names of the font's typefaces in its order; empty without a font or with a bitmap font. */
	TArray<FName> GetFontTypeface() const;
};

/** A reference to one icon: which icon font, which typeface of it, which icon, in which colour. */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FFontIconHandler
{
	GENERATED_BODY()

	/** Key of the icon font in the style configuration. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FontIconHandler")
	FName FontIconName = TEXT("FontAwesomeFree");

	/** Typeface of the icon font. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FontIconHandler")
	FName IconStyle = TEXT("Regular");

	/** Row of the icon in the font's icon table. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FontIconHandler")
	FName IconName = TEXT("thumbs-up");

	/** Colour of the glyph. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FontIconHandler")
	FHalvexColorHandler IconColor;

	FFontIconHandler() = default;
	FFontIconHandler(const FName InFontIconName, const FName InIconStyle, const FName InIconName);

	static FFontIconHandler GetDefaultConstruct();

	/**
	 * The font description that draws the icon, and the moment at which the handler looks up the font's icon table: call it
	 * before GetIconUnicode().
	 * @param Size in points at 96 dots an inch
	 * @return valid until the next call on this handler; the engine's default description where the style has no such icon font
	 */
	const FSlateFontInfo& GenerateFontSlate(int Size) const;

	/**
	 * The text that draws the icon. Without a table it is "NO TABLE UNICODE" and without a row "NO ROW FOUND UNICODE", so that
	 * an incomplete configuration shows on screen.
	 */
	FText GetIconUnicode() const;

private:
	/** Icon table of the font, as GenerateFontSlate() found it. */
	mutable TWeakObjectPtr<UDataTable> IconTable;

	/** What GenerateFontSlate() returned last. */
	mutable FSlateFontInfo GeneratedFont;
};

/** Applies style records to plain engine widgets. Every function ignores a null widget. */
UCLASS()
class HALVEXPROUI_API UHalvexStyleModels : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Gives the border a new rounded-box brush of the style. */
	UFUNCTION(BlueprintCallable, Category = "HalvexStyleModels")
	static void SetHalvexBorderStyle(UBorder* Border, const FHalvexBorderStyle& Style);

	/** Leaves the button as it is; blueprints that call it rely on seeing no effect. A Halvex button styles itself. */
	UFUNCTION(BlueprintCallable, Category = "HalvexStyleModels")
	static void SetHalvexButtonStyle(UButton* Button, const FHalvexBorderStyle& Style);

	/** Colours the text and gives it the font of the schema; without a project font the text keeps its own. */
	UFUNCTION(BlueprintCallable, Category = "HalvexStyleModels")
	static void SetHalvexTextStyle(UTextBlock* TextBlock, const FHalvexTextStyle& Style);

	/** The project's font in the size and typeface of the schema; 18 points of its default typeface for an unknown schema. */
	UFUNCTION(BlueprintCallable, Category = "HalvexStyleModels")
	static FSlateFontInfo GetFontInfoFromFontSchema(FName FontSchema);
};
