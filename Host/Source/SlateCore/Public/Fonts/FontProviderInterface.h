#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "FontProviderInterface.generated.h"

struct FCompositeFont;

UINTERFACE(MinimalAPI, meta = (CannotImplementInterfaceInBlueprint))
class UFontProviderInterface : public UInterface
{
	GENERATED_BODY()
};

/** An object that a font description can name: a font asset. */
class IFontProviderInterface
{
	GENERATED_BODY()

public:
	/** Null when the object has no typefaces. It must stay valid as long as the object. */
	virtual const FCompositeFont* GetCompositeFont() const = 0;
};
