#pragma once

#include "CoreMinimal.h"
#include "Fonts/CompositeFont.h"
#include "Fonts/FontProviderInterface.h"
#include "UObject/Object.h"
#include "Font.generated.h"

/** How the glyphs of a font come about. */
UENUM()
enum class EFontCacheType : uint8
{
	/** Drawn beforehand into pictures. */
	Offline = 0,
	/** Drawn when needed, from the font files of the composite font. */
	Runtime = 1
};

/** A font family: typefaces by name, with further ones for the characters that they lack. */
UCLASS(BlueprintType)
class ENGINE_API UFont : public UObject, public IFontProviderInterface
{
	GENERATED_BODY()

public:
	/** How the glyphs come about. */
	UPROPERTY(EditAnywhere, Category = "Font")
	EFontCacheType FontCacheType = EFontCacheType::Offline;

	/** Typefaces and fallbacks of a runtime font. A relative file name is relative to the folder of the font asset. */
	UPROPERTY(EditAnywhere, Category = "Font")
	FCompositeFont CompositeFont;

	UFont(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The typefaces of a runtime font; null for an offline one. */
	virtual const FCompositeFont* GetCompositeFont() const override;

	virtual void PostLoad() override;
};
