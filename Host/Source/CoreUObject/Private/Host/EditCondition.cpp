#include "Host/EditCondition.h"

#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		/** The value of an operand: a number, where booleans are 0 and 1, or an enumerator of an enumeration. */
		struct FOperand
		{
			double Number = 0.0;
			const UEnum* Enum = nullptr;

			bool IsTrue() const { return Number != 0.0; }
		};

		/** Evaluates while it reads. Each rule of the grammar is one function; the first mistake ends everything. */
		class FConditionReader
		{
		public:
			FConditionReader(const FString& InExpression, const UStruct* InStruct, const void* InContainer)
				: Expression(InExpression), Struct(InStruct), Container(InContainer)
			{
			}

			bool Read(bool& bOutValue, FString& OutReason)
			{
				const FOperand Result = ReadOr();
				SkipSpaces();
				if (Reason.IsEmpty() && Position < Expression.Len())
				{
					Fail(FString::Printf(TEXT("'%s' is not understood"), *Expression.Mid(Position)));
				}
				bOutValue = Result.IsTrue();
				OutReason = Reason;
				return Reason.IsEmpty();
			}

		private:
			static constexpr int32 MaxDepth = 32;

			FOperand ReadOr()
			{
				FOperand Left = ReadAnd();
				while (Take(TEXT("||")))
				{
					const FOperand Right = ReadAnd();
					Left = FromBool(Left.IsTrue() || Right.IsTrue());
				}
				return Left;
			}

			FOperand ReadAnd()
			{
				FOperand Left = ReadComparison();
				while (Take(TEXT("&&")))
				{
					const FOperand Right = ReadComparison();
					Left = FromBool(Left.IsTrue() && Right.IsTrue());
				}
				return Left;
			}

			FOperand ReadComparison()
			{
				const FOperand Left = ReadUnary();
				if (Take(TEXT("==")))
				{
					const FOperand Right = ReadUnary();
					return FromBool(Left.Number == Right.Number);
				}
				if (Take(TEXT("!=")))
				{
					const FOperand Right = ReadUnary();
					return FromBool(Left.Number != Right.Number);
				}
				if (Take(TEXT("<=")))
				{
					return FromBool(Left.Number <= ReadUnary().Number);
				}
				if (Take(TEXT(">=")))
				{
					return FromBool(Left.Number >= ReadUnary().Number);
				}
				if (Take(TEXT("<")))
				{
					return FromBool(Left.Number < ReadUnary().Number);
				}
				if (Take(TEXT(">")))
				{
					return FromBool(Left.Number > ReadUnary().Number);
				}
				return Left;
			}

			FOperand ReadUnary()
			{
				if (++Depth > MaxDepth)
				{
					return Fail(TEXT("it is nested too deeply"));
				}
				FOperand Result;
				if (!StartsWith(TEXT("!=")) && Take(TEXT("!")))
				{
					Result = FromBool(!ReadUnary().IsTrue());
				}
				else if (Take(TEXT("(")))
				{
					Result = ReadOr();
					if (!Take(TEXT(")")))
					{
						Result = Fail(TEXT("')' is missing"));
					}
				}
				else
				{
					Result = ReadOperand();
				}
				--Depth;
				return Result;
			}

			FOperand ReadOperand()
			{
				SkipSpaces();
				const int32 Start = Position;
				const auto IsWord = [](TCHAR Char) { return FChar::IsAlnum(Char) || Char == TEXT('_') || Char == TEXT('.') || Char == TEXT(':'); };
				if (Position < Expression.Len() && Expression[Position] == TEXT('-'))
				{
					++Position;
				}
				while (Position < Expression.Len() && IsWord(Expression[Position]))
				{
					++Position;
				}
				const FString Word = Expression.Mid(Start, Position - Start);
				if (Word.IsEmpty())
				{
					return Fail(TEXT("an operand is missing"));
				}
				if (Word.IsNumeric())
				{
					return { FCString::Atod(*Word), nullptr };
				}
				if (Word == TEXT("true") || Word == TEXT("false"))
				{
					return FromBool(Word == TEXT("true"));
				}
				return Word.Contains(TEXT("::")) ? ReadEnumerator(Word) : ReadMember(Word);
			}

			FOperand ReadEnumerator(const FString& Word)
			{
				FString EnumName;
				FString Enumerator;
				Word.Split(TEXT("::"), &EnumName, &Enumerator, ESearchCase::CaseSensitive);
				const UEnum* Enum = FindEnum(EnumName);
				const int32 Index = Enum ? Enum->GetIndexByNameString(Word) : INDEX_NONE;
				if (Index == INDEX_NONE)
				{
					return Fail(FString::Printf(TEXT("there is no enumerator %s among the members' enumerations"), *Word));
				}
				return { static_cast<double>(Enum->GetValueByIndex(Index)), Enum };
			}

			/** Enumerations are known by the members that have them. */
			const UEnum* FindEnum(const FString& Name) const
			{
				for (TFieldIterator<FProperty> It(Struct); It; ++It)
				{
					const UEnum* Enum = EnumOf(**It);
					if (Enum && Enum->GetName() == Name)
					{
						return Enum;
					}
				}
				return nullptr;
			}

			static const UEnum* EnumOf(const FProperty& Property)
			{
				if (const FEnumProperty* EnumProperty = CastField<FEnumProperty>(&Property))
				{
					return EnumProperty->GetEnum();
				}
				const FNumericProperty* Number = CastField<FNumericProperty>(&Property);
				return Number ? Number->GetIntPropertyEnum() : nullptr;
			}

			FOperand ReadMember(const FString& Name)
			{
				const FProperty* Property = FindFProperty<FProperty>(Struct, *Name);
				if (!Property)
				{
					return Fail(FString::Printf(TEXT("%s has no member %s"), *Struct->GetName(), *Name));
				}
				const void* Value = Property->ContainerPtrToValuePtr<void>(Container);
				if (const FBoolProperty* Bool = CastField<FBoolProperty>(Property))
				{
					return FromBool(Bool->GetPropertyValue(Value));
				}
				if (const FEnumProperty* EnumProperty = CastField<FEnumProperty>(Property))
				{
					return { static_cast<double>(EnumProperty->GetUnderlyingProperty()->GetSignedIntPropertyValue(Value)), EnumProperty->GetEnum() };
				}
				if (const FNumericProperty* Number = CastField<FNumericProperty>(Property))
				{
					const double Result = Number->IsInteger()
						? static_cast<double>(Number->GetSignedIntPropertyValue(Value))
						: Number->GetFloatingPointPropertyValue(Value);
					return { Result, Number->GetIntPropertyEnum() };
				}
				if (const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(Property))
				{
					return FromBool(Object->GetObjectPropertyValue(Value) != nullptr);
				}
				return Fail(FString::Printf(TEXT("%s cannot be part of a condition"), *Name));
			}

			static FOperand FromBool(bool bValue) { return { bValue ? 1.0 : 0.0, nullptr }; }

			FOperand Fail(const FString& Why)
			{
				if (Reason.IsEmpty())
				{
					Reason = Why;
				}
				Position = Expression.Len();
				return {};
			}

			void SkipSpaces()
			{
				while (Position < Expression.Len() && FChar::IsWhitespace(Expression[Position]))
				{
					++Position;
				}
			}

			bool StartsWith(FStringView Token)
			{
				SkipSpaces();
				return FStringView(Expression).RightChop(Position).StartsWith(Token, ESearchCase::CaseSensitive);
			}

			bool Take(FStringView Token)
			{
				if (!StartsWith(Token))
				{
					return false;
				}
				Position += Token.Len();
				return true;
			}

			const FString& Expression;
			const UStruct* Struct;
			const void* Container;
			FString Reason;
			int32 Position = 0;
			int32 Depth = 0;
		};
	}

	bool FEditCondition::Evaluate(const FString& Expression, const UStruct* Struct, const void* Container, bool& bOutValue, FString& OutReason)
	{
		return FConditionReader(Expression, Struct, Container).Read(bOutValue, OutReason);
	}

	bool FEditCondition::Holds(const FProperty* Property, const UStruct* Struct, const void* Container)
	{
		const FString* Expression = Property->FindMetaData(TEXT("EditCondition"));
		if (!Expression)
		{
			return true;
		}
		bool bValue = true;
		FString Reason;
		return !Evaluate(*Expression, Struct, Container, bValue, Reason) || bValue;
	}
}
