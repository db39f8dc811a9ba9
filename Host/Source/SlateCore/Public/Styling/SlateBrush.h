#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Styling/SlateColor.h"
#include "Types/SlateVector2.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "SlateBrush.generated.h"

class FReferenceCollector;
class FWidgetStyle;
class UObject;

/** How a brush is drawn. */
UENUM(BlueprintType)
namespace ESlateBrushDrawType
{
	enum Type : int
	{
		/** Not at all. */
		NoDrawType UMETA(DisplayName = "None"),
		/** In nine pieces: corners keep their size, the rest is stretched. */
		Box,
		/** As Box, without the middle, and with sides repeated. */
		Border,
		/** The picture over the whole box. */
		Image,
		/** Filled with the tint, with rounded corners and an outline. */
		RoundedBox UMETA(DisplayName = "Rounded Box"),
	};
}

/** In which directions a picture is repeated. */
UENUM(BlueprintType)
namespace ESlateBrushTileType
{
	enum Type : int
	{
		NoTile,
		Horizontal,
		Vertical,
		Both,
	};
}

/** In which directions a picture is mirrored. */
UENUM(BlueprintType)
namespace ESlateBrushMirrorType
{
	enum Type : int
	{
		NoMirror,
		Horizontal,
		Vertical,
		Both,
	};
}

UENUM(BlueprintType)
namespace ESlateBrushImageType
{
	enum Type : int
	{
		NoImage,
		FullColor,
		Linear,
		Vector,
	};
}

/** What gives a rounded box its corner radius. */
UENUM(BlueprintType)
namespace ESlateBrushRoundingType
{
	enum Type : int
	{
		/** The corner radii of the outline settings. */
		FixedRadius UMETA(DisplayName = "Fixed Radius"),
		/** Half the height. */
		HalfHeightRadius UMETA(DisplayName = "Half Height Radius"),
	};
}

/** Corners and outline of a rounded box. */
USTRUCT(BlueprintType)
struct SLATECORE_API FSlateBrushOutlineSettings
{
	GENERATED_BODY()

	FSlateBrushOutlineSettings() = default;

	explicit FSlateBrushOutlineSettings(float InUniformRadius)
		: CornerRadii(InUniformRadius, InUniformRadius, InUniformRadius, InUniformRadius), RoundingType(ESlateBrushRoundingType::FixedRadius)
	{
	}

	explicit FSlateBrushOutlineSettings(FVector4 InRadii) : CornerRadii(InRadii), RoundingType(ESlateBrushRoundingType::FixedRadius) {}

	FSlateBrushOutlineSettings(const FSlateColor& InColor, float InWidth) : Color(InColor), Width(InWidth) {}

	FSlateBrushOutlineSettings(float InUniformRadius, const FSlateColor& InColor, float InWidth)
		: FSlateBrushOutlineSettings(FVector4(InUniformRadius, InUniformRadius, InUniformRadius, InUniformRadius), InColor, InWidth)
	{
	}

	FSlateBrushOutlineSettings(FVector4 InRadii, const FSlateColor& InColor, float InWidth)
		: CornerRadii(InRadii), Color(InColor), Width(InWidth), RoundingType(ESlateBrushRoundingType::FixedRadius)
	{
	}

	/** X is the top left one, Y top right, Z bottom right, W bottom left; in slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	FVector4 CornerRadii = FVector4(0.0, 0.0, 0.0, 1.0);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush", meta = (DisplayName = "Outline"))
	FSlateColor Color = FLinearColor(0.0f, 0.0f, 0.0f, 0.0f);

	/** Of the outline, in slate units; 0 draws none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	float Width = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	TEnumAsByte<ESlateBrushRoundingType::Type> RoundingType = ESlateBrushRoundingType::HalfHeightRadius;

	/** The outline is as opaque as the tint of the brush. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	bool bUseBrushTransparency = false;

	bool operator==(const FSlateBrushOutlineSettings& Other) const
	{
		return CornerRadii == Other.CornerRadii && Color == Other.Color && Width == Other.Width && RoundingType == Other.RoundingType
			&& bUseBrushTransparency == Other.bUseBrushTransparency;
	}
};

/**
 * What a box is filled with: a picture, a rounded box, or nothing. Widgets keep the address of the brush that they are
 * given, so a brush outlives the widgets that show it.
 */
USTRUCT(BlueprintType)
struct SLATECORE_API FSlateBrush
{
	GENERATED_BODY()

	FSlateBrush() = default;
	virtual ~FSlateBrush() = default;
	FSlateBrush(const FSlateBrush&) = default;
	FSlateBrush& operator=(const FSlateBrush&) = default;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	TEnumAsByte<ESlateBrushDrawType::Type> DrawAs = ESlateBrushDrawType::Image;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	TEnumAsByte<ESlateBrushTileType::Type> Tiling = ESlateBrushTileType::NoTile;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	TEnumAsByte<ESlateBrushMirrorType::Type> Mirroring = ESlateBrushMirrorType::NoMirror;

	UPROPERTY()
	TEnumAsByte<ESlateBrushImageType::Type> ImageType = ESlateBrushImageType::NoImage;

	/** In slate units; what a widget that shows the brush wants to measure. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	FDeprecateSlateVector2D ImageSize = FDeprecateSlateVector2D(32.0f, 32.0f);

	/** The pieces of a box or border, in shares of the picture's size. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	FMargin Margin;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush", meta = (DisplayName = "Tint"))
	FSlateColor TintColor = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush")
	FSlateBrushOutlineSettings OutlineSettings;

	UE::Slate::FDeprecateVector2DResult GetImageSize() const { return UE::Slate::FDeprecateVector2DResult(ImageSize); }
	void SetImageSize(const UE::Slate::FDeprecateVector2DParameter& InImageSize) { ImageSize = FVector2f(InImageSize); }

	const FMargin& GetMargin() const { return Margin; }
	ESlateBrushTileType::Type GetTiling() const { return Tiling; }
	ESlateBrushMirrorType::Type GetMirroring() const { return Mirroring; }
	ESlateBrushImageType::Type GetImageType() const { return ImageType; }
	ESlateBrushDrawType::Type GetDrawType() const { return DrawAs; }

	/** The tint under the style of a widget that is painted. */
	FLinearColor GetTint(const FWidgetStyle& InWidgetStyle) const { return TintColor.GetColor(InWidgetStyle); }

	/** The object that has the picture; null when there is none. */
	UObject* GetResourceObject() const { return ResourceObject; }
	void SetResourceObject(UObject* InResourceObject);

	/** Name of the picture; None when there is none. */
	const FName GetResourceName() const { return ResourceName; }
	bool HasUObject() const { return ResourceObject != nullptr; }
	/** True when the brush is drawn. */
	bool IsSet() const { return DrawAs != ESlateBrushDrawType::NoDrawType; }

	void AddReferencedObjects(FReferenceCollector& Collector);

	bool operator==(const FSlateBrush& Other) const;
	bool operator!=(const FSlateBrush& Other) const { return !(*this == Other); }

protected:
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, FName InResourceName, const FMargin& InMargin, const FLinearColor& InTint, const FVector2f& InImageSize = FVector2f(32.0f, 32.0f));

	/** A texture, or what else can be drawn. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Brush", meta = (AllowPrivateAccess = "true", DisplayName = "Image", AllowedClasses = "/Script/Engine.Texture"))
	TObjectPtr<UObject> ResourceObject;

	UPROPERTY()
	FName ResourceName;
};
