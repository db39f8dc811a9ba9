#include "Host/Reflection/TypeBuilder.h"

#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace Host
{
	int32 FTypeBuilder::Depth = 0;

	TArray<FTypeBuilder::FPending>& FTypeBuilder::GetPending()
	{
		static TArray<FPending> Pending;
		return Pending;
	}

	UPackage* FTypeBuilder::GetPackage(const TCHAR* Name)
	{
		UPackage* Package = CreatePackage(Name);
		if (!Package->IsRooted())
		{
			Package->AddToRoot();
		}
		return Package;
	}

	void FTypeBuilder::AddPending(UStruct* Struct, void (*AddMembers)(UStruct*, const void*), const void* Info)
	{
		GetPending().Add({Struct, AddMembers, Info});
	}

	void FTypeBuilder::Leave()
	{
		if (Depth > 1)
		{
			--Depth;
			return;
		}
		// Adding members makes more types, which join the end of the list; all have their members before any is linked.
		TArray<FPending>& Pending = GetPending();
		for (int32 Index = 0; Index < Pending.Num(); ++Index)
		{
			const FPending Item = Pending[Index];
			Item.AddMembers(Item.Struct, Item.Info);
		}
		const TArray<FPending> Complete = MoveTemp(Pending);
		Pending.Reset();
		for (const FPending& Item : Complete)
		{
			EnsureLinked(Item.Struct);
		}
		--Depth;
	}

	void FTypeBuilder::EnsureLinked(UStruct* Struct)
	{
		if (!Struct || Struct->LinkState != UStruct::ELinkState::Unlinked)
		{
			return;
		}
		EnsureLinked(Struct->GetSuperStruct());
		Struct->Link();
	}

	/** Byte and bit of a bit field: the bit is set in zeroed memory and looked for. */
	static void FindBit(const UStruct* Struct, const FPropertyInfo& Info, int32& OutOffset, uint8& OutMask)
	{
		const int32 Size = Struct->GetPropertiesSize();
		uint8* Memory =
			static_cast<uint8*>(FMemory::MallocZeroed(static_cast<SIZE_T>(Size), static_cast<uint32>(Struct->GetMinAlignment())));
		Info.SetBit(Memory);
		OutOffset = 0;
		while (OutOffset < Size && Memory[OutOffset] == 0)
		{
			++OutOffset;
		}
		checkf(OutOffset < Size, TEXT("the bit of '%s' was not found in %s"), Info.Name, *Struct->GetName());
		OutMask = Memory[OutOffset];
		FMemory::Free(Memory);
	}

	void FTypeBuilder::AddProperty(UStruct* Struct, const FPropertyInfo& Info)
	{
		FProperty* Property = Info.Make(Struct, FName(Info.Name));
		Property->SetPropertyFlags(static_cast<EPropertyFlags>(Info.Flags));
		Property->SetCompiledMetaData(Info.MetaData);
		int32 Offset = static_cast<int32>(Info.Offset);
		if (Info.SetBit)
		{
			uint8 Mask = 0;
			FindBit(Struct, Info, Offset, Mask);
			CastFieldChecked<FBoolProperty>(Property)->SetBoolBit(Mask);
		}
		Property->SetOffset_Internal(Offset);
		Struct->AddCppProperty(Property);
	}

	void FTypeBuilder::FillFunction(UFunction* Function, const FFunctionInfo& Info)
	{
		Function->FunctionFlags = static_cast<EFunctionFlags>(Info.Flags);
		Function->SetNativeFunc(Info.Native);
		Function->PropertiesSize = Info.ParmsSize;
		Function->MinAlignment = Info.ParmsAlignment;
		Function->GetMetaDataMap().SetCompiled(Info.MetaData);
		for (const FPropertyInfo& Parameter : Info.Parameters)
		{
			AddProperty(Function, Parameter);
		}
	}

	void FTypeBuilder::AddFunction(UClass* Class, const FFunctionInfo& Info)
	{
		UFunction* Function = Allocate<UFunction>();
		Function->Register(UFunction::StaticClass(), Class, FName(Info.Name));
		FillFunction(Function, Info);
		UField** Tail = &Class->Children;
		while (*Tail)
		{
			Tail = &(*Tail)->Next;
		}
		*Tail = Function;
		Class->AddFunctionToFunctionMap(Function, Function->GetFName());
		AddPending(
			Function, [](UStruct*, const void*) {}, nullptr);
	}
} // namespace Host
