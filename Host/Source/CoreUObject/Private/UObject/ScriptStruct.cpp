#include "UObject/ScriptStruct.h"

#include "Misc/CString.h"
#include "Misc/OutputDevice.h"
#include "PropertyText.h"
#include "UObject/UnrealType.h"

UScriptStruct::UScriptStruct(const FObjectInitializer& ObjectInitializer)
	: UStruct(ObjectInitializer)
{
}

UScriptStruct::UScriptStruct(EStaticConstructor, EObjectFlags InFlags)
	: UStruct(EC_StaticConstructor, InFlags)
{
}

FString UScriptStruct::GetStructCPPName() const
{
	return FString(GetPrefixCPP()) + GetName();
}

void UScriptStruct::SetCppStructOps(const Host::FStructOps* InOps)
{
	CppStructOps = InOps;
	if (!InOps)
	{
		return;
	}
	PropertiesSize = InOps->Size;
	MinAlignment = InOps->Alignment;
	StructFlags |= STRUCT_Native;
	if (InOps->bPlainOldData)
	{
		StructFlags |= STRUCT_IsPlainOldData | STRUCT_NoDestructor;
	}
	if (InOps->Identical)
	{
		StructFlags |= STRUCT_IdenticalNative;
	}
}

void UScriptStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	if (!CppStructOps)
	{
		UStruct::InitializeStruct(Dest, ArrayDim);
		return;
	}
	// Members without an initialiser start as zero rather than as whatever the memory held.
	FMemory::Memzero(Dest, static_cast<SIZE_T>(GetStructureSize()) * static_cast<SIZE_T>(ArrayDim));
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CppStructOps->Construct(static_cast<uint8*>(Dest) + Index * GetStructureSize());
	}
}

void UScriptStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	if (!CppStructOps)
	{
		UStruct::DestroyStruct(Dest, ArrayDim);
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CppStructOps->Destruct(static_cast<uint8*>(Dest) + Index * GetStructureSize());
	}
}

void UScriptStruct::CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		uint8* To = static_cast<uint8*>(Dest) + Index * GetStructureSize();
		const uint8* From = static_cast<const uint8*>(Src) + Index * GetStructureSize();
		if (CppStructOps)
		{
			CppStructOps->Copy(To, From);
			continue;
		}
		for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			Property->CopyCompleteValue_InContainer(To, From);
		}
	}
}

void UScriptStruct::ClearScriptStruct(void* Dest, int32 ArrayDim) const
{
	DestroyStruct(Dest, ArrayDim);
	InitializeStruct(Dest, ArrayDim);
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	if (CppStructOps && CppStructOps->Identical)
	{
		return CppStructOps->Identical(A, B);
	}
	for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			if (!Property->Identical_InContainer(A, B, Index, PortFlags))
			{
				return false;
			}
		}
	}
	return true;
}

uint32 UScriptStruct::GetStructTypeHash(const void* Src) const
{
	checkf(CppStructOps && CppStructOps->GetTypeHash, TEXT("%s has no GetTypeHash"), *GetStructCPPName());
	return CppStructOps->GetTypeHash(Src);
}

namespace
{
	void Report(FOutputDevice* ErrorText, const FString& Text)
	{
		if (ErrorText)
		{
			ErrorText->Log(Text);
		}
	}

	/** Reads a member's name or an index. */
	const TCHAR* ReadWord(const TCHAR* Buffer, FString& OutWord)
	{
		while (FChar::IsAlnum(*Buffer) || *Buffer == TEXT('_'))
		{
			OutWord.AppendChar(*Buffer++);
		}
		return Host::SkipBlanks(Buffer);
	}

	/** Steps over a value that nobody wants: up to the comma or bracket behind it. Null when a bracket or quote is left open. */
	const TCHAR* SkipValue(const TCHAR* Buffer)
	{
		int32 Depth = 0;
		while (*Buffer && (Depth > 0 || (*Buffer != TEXT(',') && *Buffer != TEXT(')'))))
		{
			FString Text;
			const TCHAR* BehindQuoted = Host::ReadQuoted(Buffer, Text);
			Depth += *Buffer == TEXT('(') ? 1 : *Buffer == TEXT(')') ? -1 : 0;
			Buffer = BehindQuoted ? BehindQuoted : Buffer + 1;
		}
		return *Buffer ? Buffer : nullptr;
	}
} // namespace

/** Reads the value of one member, or of one element of a C array member ("Name[1]=..."). */
static const TCHAR* ImportMember(const UScriptStruct& Struct, const TCHAR* Buffer, void* Value, UObject* OwnerObject,
	int32 PortFlags, FOutputDevice* ErrorText, const FString& StructName)
{
	FString Name;
	Buffer = ReadWord(Buffer, Name);
	int32 ArrayIndex = 0;
	Buffer = Host::SkipBlanks(Buffer);
	if (*Buffer == TEXT('[') || *Buffer == TEXT('('))
	{
		FString Index;
		Buffer = ReadWord(Buffer + 1, Index);
		ArrayIndex = FCString::Atoi(*Index);
		Buffer = *Buffer ? Buffer + 1 : Buffer;
	}
	Buffer = Host::SkipBlanks(Buffer);
	if (Name.IsEmpty() || *Buffer != TEXT('='))
	{
		Report(ErrorText, FString::Printf(TEXT("%s: expected 'Name=Value' at '%s'"), *StructName, *FString(Buffer).Left(20)));
		return nullptr;
	}
	Buffer = Host::SkipBlanks(Buffer + 1);
	const FProperty* Property = FindFProperty<FProperty>(&Struct, *Name);
	if (!Property || ArrayIndex < 0 || ArrayIndex >= Property->ArrayDim)
	{
		Report(ErrorText, FString::Printf(TEXT("%s has no member '%s'"), *StructName, *Name));
		return SkipValue(Buffer);
	}
	return Property->ImportText_Direct(
		Buffer, Property->ContainerPtrToValuePtr<void>(Value, ArrayIndex), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
}

const TCHAR* UScriptStruct::ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags,
	FOutputDevice* ErrorText, const FString& StructName) const
{
	if (CppStructOps && CppStructOps->ImportTextItem)
	{
		const TCHAR* Cursor = Buffer;
		if (CppStructOps->ImportTextItem(Cursor, Value, PortFlags, OwnerObject, ErrorText))
		{
			return Cursor;
		}
	}
	Buffer = Host::SkipBlanks(Buffer);
	if (*Buffer != TEXT('('))
	{
		Report(ErrorText, FString::Printf(TEXT("%s: expected '('"), *StructName));
		return nullptr;
	}
	Buffer = Host::SkipBlanks(Buffer + 1);
	while (*Buffer != TEXT(')'))
	{
		Buffer = ImportMember(*this, Buffer, Value, OwnerObject, PortFlags, ErrorText, StructName);
		if (!Buffer)
		{
			return nullptr;
		}
		Buffer = Host::SkipBlanks(Buffer);
		if (*Buffer == TEXT(','))
		{
			Buffer = Host::SkipBlanks(Buffer + 1);
		}
		else if (*Buffer != TEXT(')'))
		{
			Report(ErrorText, FString::Printf(TEXT("%s: expected ',' or ')'"), *StructName));
			return nullptr;
		}
	}
	return Buffer + 1;
}

void UScriptStruct::ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags,
	UObject* ExportRootScope) const
{
	if (CppStructOps && CppStructOps->ExportTextItem &&
		CppStructOps->ExportTextItem(ValueStr, Value, Defaults, OwnerObject, PortFlags, ExportRootScope))
	{
		return;
	}
	ValueStr += TEXT("(");
	bool bFirst = true;
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			const void* DefaultValue = Defaults ? It->ContainerPtrToValuePtr<void>(Defaults, Index) : nullptr;
			const void* MemberValue = It->ContainerPtrToValuePtr<void>(Value, Index);
			if (DefaultValue && It->Identical(MemberValue, DefaultValue, static_cast<uint32>(PortFlags)))
			{
				continue;
			}
			ValueStr += bFirst ? TEXT("") : TEXT(",");
			bFirst = false;
			ValueStr += It->GetName();
			ValueStr += It->ArrayDim > 1 ? FString::Printf(TEXT("[%d]="), Index) : FString(TEXT("="));
			It->ExportTextItem_Direct(
				ValueStr, MemberValue, DefaultValue, OwnerObject, PortFlags | PPF_Delimited, ExportRootScope);
		}
	}
	ValueStr += TEXT(")");
}
