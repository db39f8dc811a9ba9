#include "Host/WidgetClassNames.h"

#include "Components/Widget.h"
#include "UObject/UObjectIterator.h"

namespace Host
{
	namespace
	{
		UClass* FindNativeWidgetClass(const FString& Name)
		{
			for (TObjectIterator<UClass> It; It; ++It)
			{
				if (It->IsNative() && It->IsChildOf(UWidget::StaticClass()) && It->GetName() == Name)
				{
					return *It;
				}
			}
			return nullptr;
		}
	}

	UClass* FindWidgetClass(const FString& Name, FString& OutReason)
	{
		UClass* Class = nullptr;
		if (!Name.StartsWith(TEXT("/")))
		{
			Class = FindNativeWidgetClass(Name);
		}
		else if (Name.StartsWith(TEXT("/Script/")))
		{
			Class = FindObject<UClass>(nullptr, *Name);
		}
		else
		{
			// Quietly: the caller's line says where the class is asked for.
			Class = LoadObject<UClass>(nullptr, Name.EndsWith(TEXT("_C")) ? *Name : *(Name + TEXT("_C")), nullptr, LOAD_Quiet);
		}
		if (!Class)
		{
			OutReason = FString::Printf(TEXT("there is no class '%s'."), *Name);
			return nullptr;
		}
		if (!Class->IsChildOf(UWidget::StaticClass()))
		{
			OutReason = FString::Printf(TEXT("'%s' is no class of widgets."), *Name);
			return nullptr;
		}
		return Class;
	}
}
