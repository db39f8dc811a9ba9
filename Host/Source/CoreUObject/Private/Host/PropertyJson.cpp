#include "Host/PropertyJson.h"

#include "Host/AssetLoaders.h"
#include "Host/PropertyJsonReader.h"
#include "Math/Color.h"

namespace Host
{
	namespace
	{
		bool IsHexColor(FStringView Text)
		{
			if (Text.Len() != 7 && Text.Len() != 9 && Text.Len() != 4)
			{
				return false;
			}
			for (int32 Index = 1; Index < Text.Len(); ++Index)
			{
				if (!FChar::IsHexDigit(Text[Index]))
				{
					return false;
				}
			}
			return Text[0] == TEXT('#');
		}

		bool TryGetColor(const FJsonNode& Node, FColor& OutColor)
		{
			if (!Node.IsString() || !IsHexColor(Node.GetString()))
			{
				return false;
			}
			OutColor = FColor::FromHex(FString(Node.GetString()));
			return true;
		}

		bool ReadColor(const FJsonNode& Node, const UScriptStruct*, void* Value)
		{
			return TryGetColor(Node, *static_cast<FColor*>(Value));
		}

		bool ReadLinearColor(const FJsonNode& Node, const UScriptStruct*, void* Value)
		{
			FColor Color;
			if (!TryGetColor(Node, Color))
			{
				return false;
			}
			*static_cast<FLinearColor*>(Value) = FLinearColor(Color);
			return true;
		}

		bool ReadSoftPath(const FJsonNode& Node, const UScriptStruct*, void* Value)
		{
			FString Path;
			if (!Node.TryGetString(Path))
			{
				return false;
			}
			static_cast<FSoftObjectPath*>(Value)->SetPath(Path);
			return true;
		}

		TMap<FName, FPropertyJson::FStructReader>& GetStructReaders()
		{
			static TMap<FName, FPropertyJson::FStructReader> Readers = []
			{
				TMap<FName, FPropertyJson::FStructReader> Initial;
				Initial.Add(FName(TEXT("/Script/CoreUObject.Color")), &ReadColor);
				Initial.Add(FName(TEXT("/Script/CoreUObject.LinearColor")), &ReadLinearColor);
				Initial.Add(FName(TEXT("/Script/CoreUObject.SoftObjectPath")), &ReadSoftPath);
				Initial.Add(FName(TEXT("/Script/CoreUObject.SoftClassPath")), &ReadSoftPath);
				return Initial;
			}();
			return Readers;
		}

		/** Letters to insert, remove or replace to get from one name to the other, without regard to case; gives up above the limit. */
		int32 EditDistance(const FString& A, const FString& B, int32 Limit)
		{
			if (FMath::Abs(A.Len() - B.Len()) > Limit)
			{
				return Limit + 1;
			}
			TArray<int32> Row;
			Row.SetNum(B.Len() + 1);
			for (int32 Column = 0; Column <= B.Len(); ++Column)
			{
				Row[Column] = Column;
			}
			for (int32 Line = 1; Line <= A.Len(); ++Line)
			{
				int32 Diagonal = Row[0];
				Row[0] = Line;
				for (int32 Column = 1; Column <= B.Len(); ++Column)
				{
					const bool bSame = FChar::ToLower(A[Line - 1]) == FChar::ToLower(B[Column - 1]);
					const int32 Replaced = Diagonal + (bSame ? 0 : 1);
					Diagonal = Row[Column];
					Row[Column] = FMath::Min(Replaced, FMath::Min(Row[Column], Row[Column - 1]) + 1);
				}
			}
			return Row[B.Len()];
		}
	}

	FPropertyJson::FStructReader FindStructReader(const UScriptStruct& Struct)
	{
		const FPropertyJson::FStructReader* Reader = GetStructReaders().Find(FName(Struct.GetPathName()));
		return Reader ? *Reader : nullptr;
	}

	FString FindSimilarName(const FString& Name, const TArray<FString>& Candidates)
	{
		constexpr int32 LongestCompared = 64;
		int32 Least = FMath::Max(1, Name.Len() / 4) + 1;
		FString Best;
		for (const FString& Candidate : Candidates)
		{
			if (Name.Len() > LongestCompared || Candidate.Len() > LongestCompared)
			{
				continue;
			}
			const int32 Distance = EditDistance(Name, Candidate, Least);
			if (Distance < Least)
			{
				Least = Distance;
				Best = Candidate;
			}
		}
		return Best;
	}

	int32 FPropertyJson::ReadObject(const FJsonNode& Node, UObject* Object)
	{
		return ReadObject(Node, Object, [](const FString& Message) { UE_LOG(LogAssets, Error, TEXT("%s"), *Message); });
	}

	int32 FPropertyJson::ReadObject(const FJsonNode& Node, UObject* Object, FReport Report)
	{
		return ReadStruct(Node, Object->GetClass(), Object, Object, Report);
	}

	int32 FPropertyJson::ReadStruct(const FJsonNode& Node, const UStruct* Struct, void* Value, UObject* Owner, FReport Report)
	{
		FPropertyJsonReader Reader(Owner, Report);
		Reader.ReadMembers(Node, Struct, Value);
		return Reader.GetNumMessages();
	}

	int32 FPropertyJson::ReadValue(const FJsonNode& Node, const FProperty* Property, void* Value, UObject* Owner, FReport Report)
	{
		FPropertyJsonReader Reader(Owner, Report);
		Reader.ReadProperty(Node, *Property, Value);
		return Reader.GetNumMessages();
	}

	int32 FPropertyJson::ReadElement(const FJsonNode& Node, const FProperty* Property, void* Value, UObject* Owner, FReport Report)
	{
		FPropertyJsonReader Reader(Owner, Report);
		Reader.ReadElement(Node, *Property, Value);
		return Reader.GetNumMessages();
	}

	void FPropertyJson::AddStructReader(const FString& StructPath, FStructReader Reader)
	{
		GetStructReaders().Add(FName(StructPath), Reader);
	}

	bool FPropertyJson::IsStored(const FProperty* Property)
	{
		return !Property->HasAnyPropertyFlags(CPF_Transient | CPF_SkipSerialization)
			&& !Property->IsA<FDelegateProperty>() && !Property->IsA<FMulticastDelegateProperty>();
	}
}
