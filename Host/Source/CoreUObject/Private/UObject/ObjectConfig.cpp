#include "UObject/Object.h"

#include "Host/ConfigFiles.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/StringOutputDevice.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

namespace
{
	/** Where the configured values of a class stand. */
	struct FConfigPlace
	{
		FString File;
		FString Section;
	};

	FConfigPlace PlaceOf(const UObject& Object, const UClass* Class, const TCHAR* Filename)
	{
		FConfigPlace Place;
		Place.File = Filename && *Filename ? FString(Filename) : Class->GetConfigName();
		Place.Section = Class->GetPathName();
		if (Class->HasAnyClassFlags(CLASS_PerObjectConfig) && !Object.HasAnyFlags(RF_ClassDefaultObject))
		{
			Place.Section = Object.GetName() + TEXT(" ") + Class->GetName();
		}
		return Place;
	}

	/** A global property has its value in the class that declares it, for all classes derived from that. */
	FConfigPlace PlaceOf(const UObject& Object, const UClass* Class, const FProperty& Property, const TCHAR* Filename)
	{
		return PlaceOf(Object, Property.HasAnyPropertyFlags(CPF_GlobalConfig) ? Property.GetOwnerClass() : Class, Filename);
	}

	void ReportBadValue(const UObject& Object, const FProperty& Property, const FConfigPlace& Place, const FString& Text, const FString& Why)
	{
		if (!Host::FConfigFiles::IsFirstReport(Place.File, Place.Section, Property.GetName(), Text))
		{
			return;
		}
		// Enough to find it by; a damaged file can have lines of any length.
		constexpr int32 MostShown = 100;
		const FString Shown = Text.Len() > MostShown ? Text.Left(MostShown) + TEXT("...") : Text;
		FString Reason = Text.Len() > MostShown ? FString() : Why.TrimStartAndEnd();
		UE_LOG(LogUObjectGlobals, Error, TEXT("configuration %s, [%s] %s: expected %s, found '%s'%s%s; %s keeps its value"),
			*Place.File, *Place.Section, *Property.GetName(), *Property.GetCPPType(), *Shown,
			Reason.IsEmpty() ? TEXT("") : TEXT(": "), *Reason, *Object.GetName());
	}

	bool ImportValue(UObject& Object, const FProperty& Property, void* Value, const FConfigPlace& Place, const FString& Text)
	{
		FStringOutputDevice Why;
		const TCHAR* End = Property.ImportText_Direct(*Text, Value, &Object, PPF_None, &Why);
		if (!End)
		{
			ReportBadValue(Object, Property, Place, Text, Why);
		}
		return End != nullptr;
	}

	/** An array has one line an element. */
	bool LoadArray(UObject& Object, const FArrayProperty& Property, const FConfigPlace& Place, const FString& Key)
	{
		TArray<FString> Texts;
		if (GConfig->GetArray(*Place.Section, *Key, Texts, Place.File) == 0)
		{
			return false;
		}
		void* Value = Property.ContainerPtrToValuePtr<void>(&Object);
		if (Texts.Num() == 1 && Texts[0].StartsWith(TEXT("(")) && !Property.Inner->IsA<FStructProperty>())
		{
			return ImportValue(Object, Property, Value, Place, Texts[0]);
		}
		FScriptArrayHelper Array(&Property, Value);
		Array.EmptyValues(Texts.Num());
		for (const FString& Text : Texts)
		{
			const int32 Index = Array.AddValue();
			if (!ImportValue(Object, *Property.Inner, Array.GetRawPtr(Index), Place, Text))
			{
				Array.RemoveValues(Index);
			}
		}
		return true;
	}

	bool LoadProperty(UObject& Object, const FProperty& Property, const FConfigPlace& Place)
	{
		if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(&Property))
		{
			return LoadArray(Object, *ArrayProperty, Place, Property.GetName());
		}
		bool bAny = false;
		for (int32 Index = 0; Index < Property.ArrayDim; ++Index)
		{
			const FString Key = Property.ArrayDim == 1 ? Property.GetName() : FString::Printf(TEXT("%s[%d]"), *Property.GetName(), Index);
			FString Text;
			if (GConfig->GetString(*Place.Section, *Key, Text, Place.File))
			{
				bAny |= ImportValue(Object, Property, Property.ContainerPtrToValuePtr<void>(&Object, Index), Place, Text);
			}
		}
		return bAny;
	}

	FString ExportValue(const UObject& Object, const FProperty& Property, const void* Value)
	{
		FString Text;
		Property.ExportTextItem_Direct(Text, Value, nullptr, const_cast<UObject*>(&Object), PPF_None);
		return Text;
	}

	/** The lines that stand for the property's value. */
	TArray<FString> ExportLines(const UObject& Object, const FProperty& Property, int32 Index)
	{
		const void* Value = Property.ContainerPtrToValuePtr<void>(&Object, Index);
		TArray<FString> Lines;
		if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(&Property))
		{
			const FScriptArrayHelper Array(ArrayProperty, Value);
			for (int32 Element = 0; Element < Array.Num(); ++Element)
			{
				Lines.Add(ExportValue(Object, *ArrayProperty->Inner, Array.GetRawPtr(Element)));
			}
			return Lines;
		}
		Lines.Add(ExportValue(Object, Property, Value));
		return Lines;
	}

	template<typename TOperation>
	void ForEachConfigProperty(const UClass* Class, uint64 Flags, TOperation Operation)
	{
		for (const FProperty* Property = Class->PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			if (Property->HasAnyPropertyFlags(CPF_Config) && Property->HasAllPropertyFlags(Flags & ~static_cast<uint64>(CPF_Config)))
			{
				Operation(*Property);
			}
		}
	}

	/** Calls Operation with each configured value's key and lines. */
	template<typename TOperation>
	void ForEachConfigValue(const UObject& Object, uint64 Flags, TOperation Operation)
	{
		ForEachConfigProperty(Object.GetClass(), Flags, [&](const FProperty& Property)
		{
			for (int32 Index = 0; Index < Property.ArrayDim; ++Index)
			{
				const FString Key = Property.ArrayDim == 1 ? Property.GetName() : FString::Printf(TEXT("%s[%d]"), *Property.GetName(), Index);
				Operation(Property, Key, ExportLines(Object, Property, Index));
			}
		});
	}
}

void UObject::LoadConfig(UClass* ConfigClass, const TCHAR* Filename)
{
	const UClass* Class = ConfigClass ? ConfigClass : GetClass();
	if (Class->GetConfigName().IsEmpty() && !Filename)
	{
		return;
	}
	ForEachConfigProperty(Class, CPF_Config, [&](const FProperty& Property)
	{
		LoadProperty(*this, Property, PlaceOf(*this, Class, Property, Filename));
	});
}

void UObject::ReloadConfig(UClass* ConfigClass, const TCHAR* Filename)
{
	const UClass* Class = ConfigClass ? ConfigClass : GetClass();
	ForEachConfigProperty(Class, CPF_Config, [&](const FProperty& Property)
	{
		if (LoadProperty(*this, Property, PlaceOf(*this, Class, Property, Filename)))
		{
			PostReloadConfig(const_cast<FProperty*>(&Property));
		}
	});
}

void UObject::SaveConfig(uint64 Flags, const TCHAR* Filename)
{
	const UClass* Class = GetClass();
	if (!Class->HasAnyClassFlags(CLASS_Config))
	{
		return;
	}
	if (Class->HasAnyClassFlags(CLASS_DefaultConfig) && !Filename)
	{
		TryUpdateDefaultConfigFile();
		return;
	}
	FString File;
	ForEachConfigValue(*this, Flags, [&](const FProperty& Property, const FString& Key, const TArray<FString>& Lines)
	{
		const FConfigPlace Place = PlaceOf(*this, Class, Property, Filename);
		File = Place.File;
		if (!Class->HasAnyClassFlags(CLASS_ConfigDoNotCheckDefaults))
		{
			// What the lower layers say already is not repeated above them, where it would hide their later changes.
			GConfig->RemoveKey(*Place.Section, *Key, Place.File);
			TArray<FString> Lower;
			GConfig->GetArray(*Place.Section, *Key, Lower, Place.File);
			if (Lower == Lines)
			{
				return;
			}
		}
		if (Property.IsA<FArrayProperty>())
		{
			GConfig->SetArray(*Place.Section, *Key, Lines, Place.File);
		}
		else
		{
			GConfig->SetString(*Place.Section, *Key, *Lines[0], Place.File);
		}
	});
	if (!File.IsEmpty())
	{
		GConfig->Flush(false, File);
	}
}

bool UObject::TryUpdateDefaultConfigFile(const FString& SpecificFileLocation)
{
	const UClass* Class = GetClass();
	bool bWritten = true;
	ForEachConfigValue(*this, CPF_Config, [&](const FProperty& Property, const FString& Key, const TArray<FString>& Lines)
	{
		const FConfigPlace Place = PlaceOf(*this, Class, Property, *SpecificFileLocation);
		TArray<FString> Current;
		GConfig->GetArray(*Place.Section, *Key, Current, Place.File);
		if (Current != Lines)
		{
			bWritten &= Host::FConfigFiles::SaveProjectDefault(Place.File, Place.Section, Key, Lines);
		}
	});
	return bWritten;
}
