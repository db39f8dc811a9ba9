#include "CoreMinimal.h"
#include "Host/JsonDocument.h"
#include "Host/PropertyJson.h"
#include "ObjectTestStyle.h"
#include "UObject/UObjectGlobals.h"

/** Any bytes, read as the properties of an asset: no crash, and every value still readable afterwards. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	static UObjectTestStyle* Style = []
	{
		UObjectTestStyle* Made = NewObject<UObjectTestStyle>();
		Made->AddToRoot();
		return Made;
	}();
	Host::FJsonDocument Document;
	if (!Document.Parse(Data, static_cast<int64>(Size), TEXT("fuzz.json")))
	{
		return 0;
	}
	Host::FPropertyJson::ReadObject(Document.GetRoot(), Style, [](const FString&) {});
	Style->Part = nullptr;
	CollectGarbage(RF_NoFlags);
	return 0;
}
