#include "Host/EditCondition.h"
#include "Host/JsonDocument.h"
#include "Host/PropertyEdit.h"
#include "ObjectTestStyle.h"
#include "UObject/UObjectGlobals.h"
#include "gtest/gtest.h"

namespace
{
	class PropertyEdit : public testing::Test
	{
	protected:
		virtual void SetUp() override { Style = NewObject<UObjectTestStyle>(); }

		FString Set(const TCHAR* Path, const TCHAR* Text)
		{
			FString Reason;
			const bool bSet = Host::FPropertyEdit::SetFromText(Style, Path, Text, Reason);
			EXPECT_EQ(bSet, Reason.IsEmpty());
			return Reason;
		}

		FString Get(const TCHAR* Path)
		{
			FString Text;
			FString Reason;
			EXPECT_TRUE(Host::FPropertyEdit::GetAsText(Style, Path, Text, Reason)) << TCHAR_TO_UTF8(*Reason);
			return Text;
		}

		bool CanEdit(const TCHAR* Path)
		{
			FString Reason;
			return Host::FPropertyEdit::CanEdit(Style, Path, Reason);
		}

		void ExpectNotifications(std::initializer_list<const TCHAR*> Expected)
		{
			TArray<FString> Strings;
			for (const TCHAR* Line : Expected)
			{
				Strings.Add(Line);
			}
			EXPECT_EQ(Style->Notifications, Strings);
			Style->Notifications.Empty();
		}

		UObjectTestStyle* Style = nullptr;
	};
}

TEST_F(PropertyEdit, MemberIsSetAndAnnounced)
{
	EXPECT_EQ(Set(TEXT("Whole"), TEXT("12")), FString());

	EXPECT_EQ(Style->Whole, 12);
	EXPECT_EQ(Style->LastChangeType, static_cast<uint32>(EPropertyChangeType::ValueSet));
	ExpectNotifications({ TEXT("Pre:Whole"), TEXT("Chain:Whole.Whole/1"), TEXT("Post:Whole.Whole") });
}

TEST_F(PropertyEdit, MemberOfAStructureIsAnnouncedWithTheObjectsOwnMember)
{
	EXPECT_EQ(Set(TEXT("Entry.Box.Width"), TEXT("2.5")), FString());

	EXPECT_EQ(Style->Entry.Box.Width, 2.5f);
	ExpectNotifications({ TEXT("Pre:Entry"), TEXT("Chain:Entry.Width/3"), TEXT("Post:Entry.Width") });
}

TEST_F(PropertyEdit, ElementIsAnnouncedUnderTheNameOfItsArray)
{
	Style->Numbers = { 1, 2, 3 };

	EXPECT_EQ(Set(TEXT("Numbers[1]"), TEXT("9")), FString());

	EXPECT_EQ(Style->Numbers, TArray<int32>({ 1, 9, 3 }));
	ExpectNotifications({ TEXT("Pre:Numbers"), TEXT("Chain:Numbers.Numbers/2"), TEXT("Post:Numbers.Numbers") });
}

TEST_F(PropertyEdit, IndexOfAnElementGoesByTheNameOfItsArray)
{
	Style->Numbers = { 1, 2, 3 };
	EXPECT_EQ(Set(TEXT("Numbers[2]"), TEXT("9")), FString());
	EXPECT_EQ(Style->LastNumbersIndex, 2);

	EXPECT_EQ(Set(TEXT("Whole"), TEXT("1")), FString());
	EXPECT_EQ(Style->LastNumbersIndex, INDEX_NONE);

	FString Reason;
	EXPECT_TRUE(Host::FPropertyEdit::AddElement(Style, TEXT("Numbers"), Reason));
	EXPECT_EQ(Style->LastNumbersIndex, 3);
	EXPECT_TRUE(Host::FPropertyEdit::RemoveElement(Style, TEXT("Numbers[1]"), Reason));
	EXPECT_EQ(Style->LastNumbersIndex, 1);
}

TEST_F(PropertyEdit, MemberOfAnElementIsReached)
{
	Style->Entries.SetNum(2);

	EXPECT_EQ(Set(TEXT("Entries[1].Id"), TEXT("Second")), FString());

	EXPECT_EQ(Style->Entries[1].Id, FName(TEXT("Second")));
	ExpectNotifications({ TEXT("Pre:Entries"), TEXT("Chain:Entries.Id/3"), TEXT("Post:Entries.Id") });
}

TEST_F(PropertyEdit, ValueOfAMapAndElementOfACArrayAreReached)
{
	Style->Colors.Add(TEXT("Primary"), FLinearColor(0.0f, 0.0f, 0.0f, 1.0f));

	EXPECT_EQ(Set(TEXT("Colors[Primary].R"), TEXT("1")), FString());
	EXPECT_EQ(Set(TEXT("Fixed[2]"), TEXT("8")), FString());

	EXPECT_EQ(Style->Colors.FindRef(TEXT("Primary")).R, 1.0f);
	EXPECT_EQ(Style->Fixed[2], 8);
}

TEST_F(PropertyEdit, InnerObjectGetsTheNotifications)
{
	Style->Base = NewObject<UObjectTestStyle>();

	EXPECT_EQ(Set(TEXT("Base.Whole"), TEXT("5")), FString());

	EXPECT_EQ(Style->Base->Whole, 5);
	ExpectNotifications({});
	EXPECT_EQ(Style->Base->Notifications.Num(), 3);
}

TEST_F(PropertyEdit, NameAloneIsThatOfAnObjectBesideTheOwner)
{
	UObjectTestStyle* Outer = NewObject<UObjectTestStyle>();
	UObjectTestStyle* Inner = NewObject<UObjectTestStyle>(Outer, TEXT("Inner"));
	UObjectTestStyle* Beside = NewObject<UObjectTestStyle>(Outer, TEXT("Beside"));
	FString Reason;
	EXPECT_TRUE(Host::FPropertyEdit::SetFromText(Inner, TEXT("Base"), TEXT("Beside"), Reason)) << TCHAR_TO_UTF8(*Reason);
	EXPECT_EQ(Inner->Base, Beside);
	EXPECT_FALSE(Host::FPropertyEdit::SetFromText(Inner, TEXT("Base"), TEXT("Elsewhere"), Reason));
	EXPECT_EQ(Inner->Base, Beside);
}

TEST_F(PropertyEdit, StringsNeedNoQuotes)
{
	EXPECT_EQ(Set(TEXT("String"), TEXT("some, text")), FString());
	EXPECT_EQ(Set(TEXT("Name"), TEXT("Some name")), FString());
	EXPECT_EQ(Set(TEXT("Text"), TEXT("Shown")), FString());

	EXPECT_EQ(Style->String, FString(TEXT("some, text")));
	EXPECT_EQ(Style->Name, FName(TEXT("Some name")));
	EXPECT_EQ(Style->Text.ToString(), FString(TEXT("Shown")));
}

TEST_F(PropertyEdit, BadPathAndBadValueChangeAndAnnounceNothing)
{
	EXPECT_EQ(Set(TEXT("Nothing"), TEXT("1")), FString(TEXT("ObjectTestStyle has no property 'Nothing'")));
	EXPECT_EQ(Set(TEXT("Entry.Nothing"), TEXT("1")), FString(TEXT("ObjectTestEntry has no property 'Nothing'")));
	EXPECT_EQ(Set(TEXT("Numbers[0]"), TEXT("1")), FString(TEXT("Numbers has 0 elements; there is no [0]")));
	EXPECT_EQ(Set(TEXT("Numbers[-1]"), TEXT("1")), FString(TEXT("Numbers has 0 elements; there is no [-1]")));
	EXPECT_EQ(Set(TEXT("Numbers[0"), TEXT("1")), FString(TEXT("'Numbers[0': ']' is missing")));
	EXPECT_EQ(Set(TEXT("Whole.X"), TEXT("1")), FString(TEXT("Whole is a int32 and has no members")));
	EXPECT_EQ(Set(TEXT("Base.Whole"), TEXT("1")), FString(TEXT("Base refers to no object")));
	EXPECT_NE(Set(TEXT(""), TEXT("1")), FString());
	EXPECT_TRUE(Set(TEXT("Whole"), TEXT("many")).StartsWith(TEXT("Whole: expected int32, found 'many'")));
	EXPECT_NE(Set(TEXT("Box"), TEXT("(Width=1,Height=")), FString());

	EXPECT_EQ(Style->Whole, 0);
	EXPECT_EQ(Style->Box.Width, 1.0f);
	ExpectNotifications({});
}

TEST_F(PropertyEdit, ValueMayBeJson)
{
	Host::FJsonDocument Document;
	ASSERT_TRUE(Document.Parse(FString(TEXT(R"([{"Id": "A"}, {"Id": "B"}])")), TEXT("edit")));
	FString Reason;

	EXPECT_TRUE(Host::FPropertyEdit::SetFromJson(Style, TEXT("Entries"), Document.GetRoot(), Reason));
	EXPECT_EQ(Style->Entries.Num(), 2);
	ExpectNotifications({ TEXT("Pre:Entries"), TEXT("Chain:Entries.Entries/1"), TEXT("Post:Entries.Entries") });

	EXPECT_FALSE(Host::FPropertyEdit::SetFromJson(Style, TEXT("Whole"), Document.GetRoot(), Reason));
	EXPECT_TRUE(Reason.Contains(TEXT("expected a whole number, found an array")));
	ExpectNotifications({});
}

TEST_F(PropertyEdit, ElementsAreAddedAndRemoved)
{
	FString Reason;
	EXPECT_TRUE(Host::FPropertyEdit::AddElement(Style, TEXT("Numbers"), Reason));
	EXPECT_EQ(Style->LastChangeType, static_cast<uint32>(EPropertyChangeType::ArrayAdd));
	EXPECT_TRUE(Host::FPropertyEdit::AddElement(Style, TEXT("Numbers"), Reason));
	EXPECT_EQ(Set(TEXT("Numbers[1]"), TEXT("6")), FString());
	EXPECT_TRUE(Host::FPropertyEdit::RemoveElement(Style, TEXT("Numbers[0]"), Reason));
	EXPECT_EQ(Style->LastChangeType, static_cast<uint32>(EPropertyChangeType::ArrayRemove));

	EXPECT_EQ(Style->Numbers, TArray<int32>({ 6 }));
	EXPECT_FALSE(Host::FPropertyEdit::RemoveElement(Style, TEXT("Whole"), Reason));
	EXPECT_FALSE(Host::FPropertyEdit::AddElement(Style, TEXT("Whole"), Reason));
}

TEST_F(PropertyEdit, DefaultComesBack)
{
	Style->Entry.Box.Height = 77.0f;
	FString Reason;

	EXPECT_TRUE(Host::FPropertyEdit::ResetToDefault(Style, TEXT("Entry.Box.Height"), Reason));

	EXPECT_EQ(Style->Entry.Box.Height, 2.0f);
	EXPECT_EQ(Style->LastChangeType, static_cast<uint32>(EPropertyChangeType::ResetToDefault));
}

TEST_F(PropertyEdit, ValueIsReadAsText)
{
	Style->Entry.Box.Height = 7.5f;
	Style->Mode = EObjectTestMode::On;

	EXPECT_EQ(Get(TEXT("Mode")), FString(TEXT("On")));
	EXPECT_TRUE(Get(TEXT("Entry.Box.Height")).StartsWith(TEXT("7.5")));
}

TEST_F(PropertyEdit, EditableOnlyWhileItsConditionHolds)
{
	EXPECT_FALSE(CanEdit(TEXT("Entry.Color")));
	Style->Entry.bOverride = true;
	EXPECT_TRUE(CanEdit(TEXT("Entry.Color")));
	EXPECT_TRUE(CanEdit(TEXT("Entry.Color.R")));

	EXPECT_FALSE(CanEdit(TEXT("Tint")));
	Style->Mode = EObjectTestMode::On;
	EXPECT_FALSE(CanEdit(TEXT("Tint")));
	Style->Whole = 2;
	EXPECT_TRUE(CanEdit(TEXT("Tint")));
}

TEST_F(PropertyEdit, ReadOnlyAndHiddenPropertiesAreNotEditable)
{
	EXPECT_TRUE(CanEdit(TEXT("Whole")));
	EXPECT_FALSE(CanEdit(TEXT("ReadOnly")));
	EXPECT_FALSE(CanEdit(TEXT("Scratch")));
}

TEST_F(PropertyEdit, ConditionsHaveAllOperators)
{
	Style->Whole = 3;
	Style->bEnabled = true;
	const auto Holds = [this](const TCHAR* Expression)
	{
		bool bValue = false;
		FString Reason;
		EXPECT_TRUE(Host::FEditCondition::Evaluate(Expression, Style->GetClass(), Style, bValue, Reason)) << TCHAR_TO_UTF8(*Reason);
		return bValue;
	};

	EXPECT_TRUE(Holds(TEXT("bEnabled")));
	EXPECT_FALSE(Holds(TEXT("!bEnabled")));
	EXPECT_TRUE(Holds(TEXT("Whole > 2 && Whole < 4 && Whole >= 3 && Whole <= 3")));
	EXPECT_TRUE(Holds(TEXT("Whole != 3 || Mode == EObjectTestMode::Off")));
	EXPECT_TRUE(Holds(TEXT("!(Whole == 4) && bEnabled == true")));
	EXPECT_FALSE(Holds(TEXT("Mode != EObjectTestMode::Off")));
	EXPECT_TRUE(Holds(TEXT("Single > -1.5")));
}

TEST_F(PropertyEdit, UnreadableConditionSaysWhy)
{
	bool bValue = false;
	FString Reason;
	const auto Fails = [&](const TCHAR* Expression)
	{
		return !Host::FEditCondition::Evaluate(Expression, Style->GetClass(), Style, bValue, Reason);
	};

	EXPECT_TRUE(Fails(TEXT("Nothing")));
	EXPECT_EQ(Reason, FString(TEXT("ObjectTestStyle has no member Nothing")));
	EXPECT_TRUE(Fails(TEXT("Mode == EObjectTestMode::Never")));
	EXPECT_TRUE(Fails(TEXT("(Whole == 1")));
	EXPECT_TRUE(Fails(TEXT("Whole ==")));
	EXPECT_TRUE(Fails(TEXT("Whole Whole")));
}
