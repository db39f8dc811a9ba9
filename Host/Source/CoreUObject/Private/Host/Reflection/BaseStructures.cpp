#include "UObject/BaseStructures.h"

#include "Host/Reflection/PropertyFactory.h"
#include "Host/Reflection/StructOps.h"
#include "Host/Reflection/TypeInfo.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/PropertyText.h"

#include <cstddef>

namespace Host
{
	namespace
	{
		/** Reads the text of a value that is written as one word or in quotes. */
		template<typename TParse>
		bool ImportWhole(const TCHAR*& Buffer, int32 PortFlags, TParse Parse)
		{
			FString Text;
			const TCHAR* Behind = ReadText(Buffer, PortFlags, Text);
			if (!Behind || !Parse(Text))
			{
				return false;
			}
			Buffer = Behind;
			return true;
		}

		void ExportWhole(FString& ValueStr, const FString& Text, int32 PortFlags)
		{
			ValueStr += (PortFlags & PPF_Delimited) ? Quote(Text) : Text;
		}

		template<typename TPath>
		constexpr FStructOps MakePathOps(const FStructOps& Base)
		{
			FStructOps Ops = Base;
			Ops.Identical = [](const void* A, const void* B)
			{
				return *static_cast<const TPath*>(A) == *static_cast<const TPath*>(B);
			};
			Ops.ExportTextItem = [](FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*)
			{
				const TPath& Path = *static_cast<const TPath*>(Value);
				ExportWhole(ValueStr, Path.IsNull() ? FString(TEXT("None")) : Path.ToString(), PortFlags);
				return true;
			};
			Ops.ImportTextItem = [](const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject*, FOutputDevice*)
			{
				return ImportWhole(Buffer, PortFlags,
					[Value](const FString& Text)
					{
						static_cast<TPath*>(Value)->SetPath(Text);
						return true;
					});
			};
			return Ops;
		}

		FStructOps MakeGuidOps()
		{
			FStructOps Ops = *GetStructOps<FGuid>();
			Ops.ExportTextItem = [](FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*)
			{
				ValueStr += static_cast<const FGuid*>(Value)->ToString();
				return true;
			};
			Ops.ImportTextItem = [](const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject*, FOutputDevice*)
			{
				// "(A=..,B=..)" is read member by member.
				return *Buffer != TEXT('(') &&
					   ImportWhole(Buffer, PortFlags,
						   [Value](const FString& Text) { return FGuid::Parse(Text, *static_cast<FGuid*>(Value)); });
			};
			return Ops;
		}

		FStructOps MakeDateTimeOps()
		{
			FStructOps Ops = *GetStructOps<FDateTime>();
			Ops.Identical = [](const void* A, const void* B)
			{
				return *static_cast<const FDateTime*>(A) == *static_cast<const FDateTime*>(B);
			};
			Ops.ExportTextItem = [](FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*)
			{
				ExportWhole(ValueStr, static_cast<const FDateTime*>(Value)->ToIso8601(), PortFlags);
				return true;
			};
			Ops.ImportTextItem = [](const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject*, FOutputDevice*)
			{
				return ImportWhole(Buffer, PortFlags,
					[Value](const FString& Text) { return FDateTime::ParseIso8601(*Text, *static_cast<FDateTime*>(Value)); });
			};
			return Ops;
		}

		FStructOps MakeTimespanOps()
		{
			FStructOps Ops = *GetStructOps<FTimespan>();
			Ops.Identical = [](const void* A, const void* B)
			{
				return *static_cast<const FTimespan*>(A) == *static_cast<const FTimespan*>(B);
			};
			Ops.ExportTextItem = [](FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*)
			{
				// Ticks keep every bit.
				ValueStr += LexToString(static_cast<const FTimespan*>(Value)->GetTicks());
				return true;
			};
			Ops.ImportTextItem = [](const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject*, FOutputDevice*)
			{
				return ImportWhole(Buffer, PortFlags,
					[Value](const FString& Text)
					{
						if (!FCString::IsNumeric(*Text))
						{
							return false;
						}
						*static_cast<FTimespan*>(Value) = FTimespan(FCString::Atoi64(*Text));
						return true;
					});
			};
			return Ops;
		}
	} // namespace
} // namespace Host

/** Description of TStruct without members. */
#define HOST_OPAQUE_STRUCTURE(TStruct, ScriptName, OpsExpression)                                                                \
	UScriptStruct* TBaseStructure<TStruct>::Get()                                                                                \
	{                                                                                                                            \
		static UScriptStruct* Struct = nullptr;                                                                                  \
		static const Host::FStructOps Ops = OpsExpression;                                                                       \
		static const Host::FStructInfo Info = {TEXT(ScriptName), TEXT("/Script/CoreUObject"), nullptr, &Ops, {}, {}};            \
		return Struct ? Struct : Host::ConstructStruct(Struct, Info);                                                            \
	}                                                                                                                            \
	template<>                                                                                                                   \
	UScriptStruct* StaticStruct<TStruct>()                                                                                       \
	{                                                                                                                            \
		return TBaseStructure<TStruct>::Get();                                                                                   \
	}

#define HOST_MEMBER(TStruct, Name)                                                                                               \
	{TEXT(#Name), &Host::MakeProperty<decltype(TStruct::Name)>, offsetof(TStruct, Name),                                         \
		CPF_Edit | CPF_BlueprintVisible | CPF_SaveGame, {}},

/** Description of TStruct with members, which follow as HOST_MEMBER entries. */
#define HOST_MEMBER_STRUCTURE(TStruct, ScriptName, OpsExpression, ...)                                                           \
	UScriptStruct* TBaseStructure<TStruct>::Get()                                                                                \
	{                                                                                                                            \
		static UScriptStruct* Struct = nullptr;                                                                                  \
		static constexpr Host::FPropertyInfo Members[] = {__VA_ARGS__};                                                          \
		static const Host::FStructOps Ops = OpsExpression;                                                                       \
		static constexpr Host::FMetaDataPair MetaData[] = {{TEXT("BlueprintType"), TEXT("true")}};                               \
		static const Host::FStructInfo Info = {TEXT(ScriptName), TEXT("/Script/CoreUObject"), nullptr, &Ops, Members, MetaData}; \
		return Struct ? Struct : Host::ConstructStruct(Struct, Info);                                                            \
	}                                                                                                                            \
	template<>                                                                                                                   \
	UScriptStruct* StaticStruct<TStruct>()                                                                                       \
	{                                                                                                                            \
		return TBaseStructure<TStruct>::Get();                                                                                   \
	}

HOST_MEMBER_STRUCTURE(
	FVector2D, "Vector2D", *Host::GetStructOps<FVector2D>(), HOST_MEMBER(FVector2D, X) HOST_MEMBER(FVector2D, Y))
HOST_MEMBER_STRUCTURE(
	FVector2f, "Vector2f", *Host::GetStructOps<FVector2f>(), HOST_MEMBER(FVector2f, X) HOST_MEMBER(FVector2f, Y))
HOST_MEMBER_STRUCTURE(
	FVector, "Vector", *Host::GetStructOps<FVector>(), HOST_MEMBER(FVector, X) HOST_MEMBER(FVector, Y) HOST_MEMBER(FVector, Z))
HOST_MEMBER_STRUCTURE(FVector3f, "Vector3f", *Host::GetStructOps<FVector3f>(),
	HOST_MEMBER(FVector3f, X) HOST_MEMBER(FVector3f, Y) HOST_MEMBER(FVector3f, Z))
HOST_MEMBER_STRUCTURE(FVector4, "Vector4", *Host::GetStructOps<FVector4>(),
	HOST_MEMBER(FVector4, X) HOST_MEMBER(FVector4, Y) HOST_MEMBER(FVector4, Z) HOST_MEMBER(FVector4, W))
HOST_MEMBER_STRUCTURE(FVector4f, "Vector4f", *Host::GetStructOps<FVector4f>(),
	HOST_MEMBER(FVector4f, X) HOST_MEMBER(FVector4f, Y) HOST_MEMBER(FVector4f, Z) HOST_MEMBER(FVector4f, W))
HOST_MEMBER_STRUCTURE(
	FIntPoint, "IntPoint", *Host::GetStructOps<FIntPoint>(), HOST_MEMBER(FIntPoint, X) HOST_MEMBER(FIntPoint, Y))
HOST_MEMBER_STRUCTURE(FIntRect, "IntRect", *Host::GetStructOps<FIntRect>(), HOST_MEMBER(FIntRect, Min) HOST_MEMBER(FIntRect, Max))
HOST_MEMBER_STRUCTURE(FBox2D, "Box2D", *Host::GetStructOps<FBox2D>(),
	HOST_MEMBER(FBox2D, Min) HOST_MEMBER(FBox2D, Max) HOST_MEMBER(FBox2D, bIsValid))
HOST_MEMBER_STRUCTURE(FColor, "Color", *Host::GetStructOps<FColor>(),
	HOST_MEMBER(FColor, B) HOST_MEMBER(FColor, G) HOST_MEMBER(FColor, R) HOST_MEMBER(FColor, A))
HOST_MEMBER_STRUCTURE(FLinearColor, "LinearColor", *Host::GetStructOps<FLinearColor>(),
	HOST_MEMBER(FLinearColor, R) HOST_MEMBER(FLinearColor, G) HOST_MEMBER(FLinearColor, B) HOST_MEMBER(FLinearColor, A))
HOST_MEMBER_STRUCTURE(
	FGuid, "Guid", Host::MakeGuidOps(), HOST_MEMBER(FGuid, A) HOST_MEMBER(FGuid, B) HOST_MEMBER(FGuid, C) HOST_MEMBER(FGuid, D))
HOST_OPAQUE_STRUCTURE(FDateTime, "DateTime", Host::MakeDateTimeOps())
HOST_OPAQUE_STRUCTURE(FTimespan, "Timespan", Host::MakeTimespanOps())
HOST_OPAQUE_STRUCTURE(
	FSoftObjectPath, "SoftObjectPath", Host::MakePathOps<FSoftObjectPath>(*Host::GetStructOps<FSoftObjectPath>()))
HOST_OPAQUE_STRUCTURE(FSoftClassPath, "SoftClassPath", Host::MakePathOps<FSoftClassPath>(*Host::GetStructOps<FSoftClassPath>()))
