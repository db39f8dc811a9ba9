#include "UMGLog.h"

#include "Host/PropertyJson.h"
#include "Modules/ModuleManager.h"
#include "Styling/SlateColor.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY(LogUMG);

namespace
{
	/** Lets files write the colour of a widget as any other, "#RRGGBB[AA]"; one that follows the style stays an object. */
	bool ReadSlateColor(const Host::FJsonNode& Node, const UScriptStruct* Struct, void* Value)
	{
		if (!Node.IsString())
		{
			return false;
		}
		FSlateColor Color = FSlateColor(FLinearColor::White);
		const FProperty* Specified = FindFProperty<FProperty>(Struct, TEXT("SpecifiedColor"));
		if (Host::FPropertyJson::ReadElement(Node, Specified, Specified->ContainerPtrToValuePtr<void>(&Color), nullptr, [](const FString&) {}) > 0)
		{
			return false;
		}
		*static_cast<FSlateColor*>(Value) = Color;
		return true;
	}

	class FUMGModule final : public FDefaultModuleImpl
	{
	public:
		virtual void StartupModule() override { Host::FPropertyJson::AddStructReader(FSlateColor::StaticStruct()->GetPathName(), &ReadSlateColor); }
	};
}

IMPLEMENT_MODULE(FUMGModule, UMG)
