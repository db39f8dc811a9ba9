#include "ExpectedLog.h"
#include "ObjectTestEvents.h"
#include "ObjectTestNode.h"
#include "ObjectTestOwner.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"
#include "gtest/gtest.h"

namespace
{
	UPackage* TestPackage()
	{
		return CreatePackage(TEXT("/Test/Objects"));
	}
}

TEST(Object, IsSmall)
{
	EXPECT_LE(sizeof(UObject), 64u);
}

TEST(Object, KnowsItsClassOuterAndName)
{
	UObjectTestNode* Node = NewObject<UObjectTestNode>(TestPackage(), TEXT("Known"));

	EXPECT_EQ(Node->GetClass(), UObjectTestNode::StaticClass());
	EXPECT_EQ(Node->GetOuter(), TestPackage());
	EXPECT_EQ(Node->GetFName(), FName(TEXT("Known")));
	EXPECT_TRUE(Node->IsA<UObject>());
	EXPECT_FALSE(Node->IsA<UObjectTestOwner>());
}

TEST(Object, WithoutAnOuterGoesToTheTransientPackage)
{
	EXPECT_EQ(NewObject<UObjectTestNode>()->GetOuter(), GetTransientPackage());
}

TEST(Object, WithoutANameGetsAUniqueOneMadeFromItsClass)
{
	UObjectTestNode* First = NewObject<UObjectTestNode>();
	UObjectTestNode* Second = NewObject<UObjectTestNode>();

	EXPECT_NE(First->GetFName(), Second->GetFName());
	EXPECT_TRUE(First->GetName().StartsWith(TEXT("ObjectTestNode_")));
}

TEST(Object, UniqueNameAvoidsAnExistingOne)
{
	const FName Taken = MakeUniqueObjectName(TestPackage(), UObjectTestNode::StaticClass(), TEXT("Base"));
	const FName Next(Taken, Taken.GetNumber() + 1);
	NewObject<UObjectTestNode>(TestPackage(), Next);

	EXPECT_NE(MakeUniqueObjectName(TestPackage(), UObjectTestNode::StaticClass(), TEXT("Base")), Next);
}

TEST(Object, MembersWithoutAnInitialiserAreZero)
{
	UObjectTestNode* Node = NewObject<UObjectTestNode>();

	EXPECT_EQ(Node->Value, 0);
	EXPECT_EQ(Node->RawNext, nullptr);
}

TEST(Object, PathNamesSeparateTheInsideOfAnAssetByAColon)
{
	UObjectTestNode* Asset = NewObject<UObjectTestNode>(TestPackage(), TEXT("Asset"));
	UObjectTestNode* Inner = NewObject<UObjectTestNode>(Asset, TEXT("Inner"));
	UObjectTestNode* Deeper = NewObject<UObjectTestNode>(Inner, TEXT("Deeper"));

	EXPECT_EQ(TestPackage()->GetPathName(), FString(TEXT("/Test/Objects")));
	EXPECT_EQ(Asset->GetPathName(), FString(TEXT("/Test/Objects.Asset")));
	EXPECT_EQ(Inner->GetPathName(), FString(TEXT("/Test/Objects.Asset:Inner")));
	EXPECT_EQ(Deeper->GetPathName(), FString(TEXT("/Test/Objects.Asset:Inner.Deeper")));
	EXPECT_EQ(Deeper->GetPathName(Asset), FString(TEXT("Inner.Deeper")));
	EXPECT_EQ(Inner->GetFullName(), FString(TEXT("ObjectTestNode /Test/Objects.Asset:Inner")));
}

TEST(Object, IsFoundByPathAndByNameInItsOuter)
{
	UObjectTestNode* Asset = NewObject<UObjectTestNode>(TestPackage(), TEXT("Findable"));
	UObjectTestNode* Inner = NewObject<UObjectTestNode>(Asset, TEXT("Inner"));

	EXPECT_EQ(FindObject<UObjectTestNode>(nullptr, TEXT("/Test/Objects.Findable")), Asset);
	EXPECT_EQ(FindObject<UObjectTestNode>(nullptr, TEXT("/Test/Objects.Findable:Inner")), Inner);
	EXPECT_EQ(FindObject<UObjectTestNode>(nullptr, TEXT("ObjectTestNode'/Test/Objects.Findable'")), Asset);
	EXPECT_EQ(FindObject<UObjectTestNode>(Asset, TEXT("Inner")), Inner);
	EXPECT_EQ(FindObject<UObjectTestNode>(nullptr, TEXT("/test/objects.findable")), Asset);
	EXPECT_EQ(FindObject<UObjectTestOwner>(nullptr, TEXT("/Test/Objects.Findable")), nullptr);
	EXPECT_EQ(FindObject<UObjectTestNode>(nullptr, TEXT("/Test/Objects.NeverNamedLikeThis")), nullptr);
	EXPECT_EQ(FindObject<UObjectTestNode>(nullptr, TEXT("")), nullptr);
}

TEST(Object, ClassIsFoundByScriptPath)
{
	EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("/Script/CoreUObjectTestTypes.ObjectTestNode")), UObjectTestNode::StaticClass());
}

TEST(Object, ExactClassRefusesDerivedObjects)
{
	UObject* Derived = NewObject<UObjectTestDerivedNode>(TestPackage(), TEXT("ExactDerived"));

	EXPECT_EQ(StaticFindObject(UObjectTestNode::StaticClass(), TestPackage(), TEXT("ExactDerived")), Derived);
	EXPECT_EQ(StaticFindObject(UObjectTestNode::StaticClass(), TestPackage(), TEXT("ExactDerived"), true), nullptr);
}

TEST(Object, RenameMovesItInTheNameLookup)
{
	UObjectTestNode* First = NewObject<UObjectTestNode>(TestPackage(), TEXT("BeforeRename"));
	UObjectTestNode* Outer = NewObject<UObjectTestNode>();

	EXPECT_TRUE(First->Rename(TEXT("AfterRename"), Outer));

	EXPECT_EQ(FindObject<UObjectTestNode>(TestPackage(), TEXT("BeforeRename")), nullptr);
	EXPECT_EQ(FindObject<UObjectTestNode>(Outer, TEXT("AfterRename")), First);
}

TEST(Object, RenameToATakenNameIsRefused)
{
	UObjectTestNode* First = NewObject<UObjectTestNode>(TestPackage(), TEXT("TakenName"));
	UObjectTestNode* Second = NewObject<UObjectTestNode>(TestPackage(), TEXT("OtherName"));
	Host::FExpectedLog Expected(TEXT("cannot be renamed to 'TakenName'"));

	EXPECT_FALSE(Second->Rename(TEXT("TakenName")));

	EXPECT_EQ(Second->GetName(), FString(TEXT("OtherName")));
	EXPECT_EQ(FindObject<UObjectTestNode>(TestPackage(), TEXT("TakenName")), First);
}

TEST(Object, OuterQuestionsWalkOutwards)
{
	UObjectTestOwner* Owner = NewObject<UObjectTestOwner>(TestPackage(), TEXT("Outermost"));
	UObjectTestNode* Inner = NewObject<UObjectTestNode>(Owner->Part.Get());

	EXPECT_EQ(Inner->GetTypedOuter<UObjectTestOwner>(), Owner);
	EXPECT_EQ(Inner->GetOutermost(), TestPackage());
	EXPECT_TRUE(Inner->IsIn(Owner));
	EXPECT_FALSE(Owner->IsIn(Inner));
	EXPECT_EQ(Inner->GetWorld(), nullptr);
}

TEST(Object, InnerObjectsAreListed)
{
	UObjectTestNode* Outer = NewObject<UObjectTestNode>();
	UObjectTestNode* Child = NewObject<UObjectTestNode>(Outer);
	UObjectTestNode* Grandchild = NewObject<UObjectTestNode>(Child);
	TArray<UObject*> Direct;
	TArray<UObject*> All;

	GetObjectsWithOuter(Outer, Direct, false);
	GetObjectsWithOuter(Outer, All);

	EXPECT_EQ(Direct, TArray<UObject*>({ Child }));
	EXPECT_EQ(All, TArray<UObject*>({ Child, Grandchild }));
}

TEST(Object, SubobjectsAreMadeByTheConstructor)
{
	UObjectTestOwner* Owner = NewObject<UObjectTestOwner>();

	ASSERT_NE(Owner->Part, nullptr);
	EXPECT_EQ(Owner->Part->GetOuter(), Owner);
	EXPECT_EQ(Owner->Part->GetFName(), FName(TEXT("Part")));
	EXPECT_TRUE(Owner->Part->IsDefaultSubobject());
	EXPECT_EQ(Owner->Part->Amount, 2);
	EXPECT_EQ(Owner->GetDefaultSubobjectByName(TEXT("Part")), Owner->Part);
	EXPECT_EQ(Owner->Optional->Peer, Owner->Part);
}

TEST(Object, DerivedClassReplacesAndLeavesOutSubobjects)
{
	UObjectTestSpecialOwner* Owner = NewObject<UObjectTestSpecialOwner>();

	EXPECT_TRUE(Owner->Part->IsA<UObjectTestOtherPart>());
	EXPECT_EQ(Owner->Optional, nullptr);
}

TEST(Object, DerivedClassMayHaveAPlainConstructor)
{
	EXPECT_EQ(NewObject<UObjectTestPlainPart>()->Amount, 5);
}

TEST(Object, ClassDefaultObjectIsATemplate)
{
	const UObjectTestOwner* Defaults = GetDefault<UObjectTestOwner>();

	EXPECT_TRUE(Defaults->HasAnyFlags(RF_ClassDefaultObject));
	EXPECT_TRUE(Defaults->IsTemplate());
	EXPECT_TRUE(Defaults->Part->IsTemplate());
	EXPECT_EQ(Defaults->GetName(), FString(TEXT("Default__ObjectTestOwner")));
	EXPECT_FALSE(NewObject<UObjectTestOwner>()->IsTemplate());
}

TEST(Object, NewObjectOfANativeClassTakesItsValuesFromTheConstructor)
{
	UObjectTestOwner* Defaults = GetMutableDefault<UObjectTestOwner>();
	Defaults->Number = 99;

	EXPECT_EQ(NewObject<UObjectTestOwner>()->Number, 7);

	Defaults->Number = 7;
}

TEST(Object, TemplateGivesItsValuesAndItsSubobjectsTheirs)
{
	UObjectTestOwner* Template = NewObject<UObjectTestOwner>();
	Template->Number = 42;
	Template->Scratch = 43;
	Template->Part->Amount = 44;
	Template->Shared = GetTransientPackage();
	Template->Extras.Add(NewObject<UObjectTestPart>(Template, TEXT("Extra")));
	Template->Extras[0]->Amount = 45;
	Template->Extras[0]->Peer = Template->Part;

	UObjectTestOwner* Made = NewObject<UObjectTestOwner>(GetTransientPackage(), NAME_None, RF_NoFlags, Template);

	EXPECT_EQ(Made->Number, 42);
	EXPECT_EQ(Made->Scratch, 43);
	EXPECT_EQ(Made->NumberAtInit, 42);
	EXPECT_EQ(Made->Shared, GetTransientPackage());
	EXPECT_NE(Made->Part, Template->Part);
	EXPECT_EQ(Made->Part->GetOuter(), Made);
	EXPECT_EQ(Made->Part->Amount, 44);
	EXPECT_EQ(Made->Optional->Peer, Made->Part);
	ASSERT_EQ(Made->Extras.Num(), 1);
	EXPECT_NE(Made->Extras[0], Template->Extras[0]);
	EXPECT_EQ(Made->Extras[0]->GetOuter(), Made);
	EXPECT_EQ(Made->Extras[0]->Amount, 45);
	EXPECT_EQ(Made->Extras[0]->Peer, Made->Part);
}

TEST(Object, TemplateMayLeaveTransientPropertiesToTheDefaults)
{
	UObjectTestOwner* Template = NewObject<UObjectTestOwner>();
	Template->Scratch = 43;

	UObjectTestOwner* Made = NewObject<UObjectTestOwner>(GetTransientPackage(), NAME_None, RF_NoFlags, Template, true);

	EXPECT_EQ(Made->Scratch, 3);
}

TEST(Object, DuplicateCopiesWhatIsInsideAndKeepsWhatIsNot)
{
	UObjectTestNode* Source = NewObject<UObjectTestNode>(TestPackage(), TEXT("DuplicateSource"));
	UObjectTestNode* Inner = NewObject<UObjectTestNode>(Source, TEXT("Inner"));
	UObjectTestNode* Outside = NewObject<UObjectTestNode>(TestPackage());
	Inner->Value = 5;
	Inner->Next = Source;
	Source->Next = Inner;
	Source->RawNext = Outside;
	Source->Children = { Inner, Outside, nullptr };
	Source->Named.Add(TEXT("Inner"), Inner);
	Source->Ranked.Add(Inner, 3);
	Source->Unordered.Add(Inner);
	Source->Links.SetNum(1);
	Source->Links[0].Target = Inner;
	Source->Weak = Inner;
	Source->TransientNext = Inner;

	UObjectTestNode* Copy = DuplicateObject<UObjectTestNode>(Source, GetTransientPackage(), TEXT("Copy"));

	UObjectTestNode* InnerCopy = Copy->Next;
	ASSERT_NE(InnerCopy, nullptr);
	EXPECT_NE(InnerCopy, Inner);
	EXPECT_EQ(InnerCopy->GetOuter(), Copy);
	EXPECT_EQ(InnerCopy->Value, 5);
	EXPECT_EQ(InnerCopy->Next, Copy);
	EXPECT_EQ(Copy->RawNext, Outside);
	EXPECT_EQ(Copy->Children[0], InnerCopy);
	EXPECT_EQ(Copy->Children[1], Outside);
	EXPECT_EQ(Copy->Children[2], nullptr);
	EXPECT_EQ(Copy->Named.FindRef(TEXT("Inner")), InnerCopy);
	EXPECT_EQ(Copy->Ranked.FindRef(InnerCopy), 3);
	EXPECT_TRUE(Copy->Unordered.Contains(InnerCopy));
	EXPECT_FALSE(Copy->Unordered.Contains(Inner));
	EXPECT_EQ(Copy->Links[0].Target, InnerCopy);
	EXPECT_EQ(Copy->Weak.Get(), InnerCopy);
	EXPECT_EQ(Copy->TransientNext, nullptr);
}

TEST(Object, DuplicateUsesTheSubobjectsThatItsConstructorMade)
{
	UObjectTestOwner* Source = NewObject<UObjectTestOwner>();
	Source->Part->Amount = 12;

	UObjectTestOwner* Copy = DuplicateObject<UObjectTestOwner>(Source, GetTransientPackage());

	EXPECT_EQ(Copy->Part->GetOuter(), Copy);
	EXPECT_EQ(Copy->Part->GetFName(), FName(TEXT("Part")));
	EXPECT_EQ(Copy->Part->Amount, 12);
	EXPECT_EQ(Copy->Events, TArray<FString>({ TEXT("PostInitProperties"), TEXT("PostDuplicate"), TEXT("PostLoad") }));
}

TEST(Object, DelegatesOfADuplicateLeadToTheDuplicates)
{
	UObjectTestSource* Source = NewObject<UObjectTestSource>();
	UObjectTestListener* Outside = NewObject<UObjectTestListener>();
	Source->OnSimple.AddDynamic(Outside, &UObjectTestListener::OnSimple);

	UObjectTestSource* Copy = DuplicateObject<UObjectTestSource>(Source, GetTransientPackage());

	EXPECT_TRUE(Copy->OnSimple.IsAlreadyBound(Outside, &UObjectTestListener::OnSimple));
}

TEST(Object, SameNameAndClassTakesOverTheMemoryOfTheOldOne)
{
	UObjectTestNode* Old = NewObject<UObjectTestNode>(TestPackage(), TEXT("Reused"));
	Old->Value = 8;
	const TWeakObjectPtr<UObjectTestNode> WeakOld = Old;

	UObjectTestNode* New = NewObject<UObjectTestNode>(TestPackage(), TEXT("Reused"));

	EXPECT_EQ(New, Old);
	EXPECT_EQ(New->Value, 0);
	EXPECT_FALSE(WeakOld.IsValid());
	EXPECT_EQ(FindObject<UObjectTestNode>(TestPackage(), TEXT("Reused")), New);
}

TEST(Object, IteratorVisitsLivingObjectsOfTheClassWithoutDefaults)
{
	UObjectTestSpecialOwner* Owner = NewObject<UObjectTestSpecialOwner>();
	UObjectTestSpecialOwner* Dead = NewObject<UObjectTestSpecialOwner>();
	Dead->MarkAsGarbage();
	bool bFound = false;

	for (TObjectIterator<UObjectTestOwner> It; It; ++It)
	{
		bFound |= *It == Owner;
		EXPECT_NE(*It, Dead);
		EXPECT_FALSE(It->HasAnyFlags(RF_ClassDefaultObject));
	}

	EXPECT_TRUE(bFound);
}

TEST(Object, DerivedClassesAreListed)
{
	TArray<UClass*> Classes;
	GetDerivedClasses(UObjectTestPart::StaticClass(), Classes);

	EXPECT_TRUE(Classes.Contains(UObjectTestOtherPart::StaticClass()));
	EXPECT_FALSE(Classes.Contains(UObjectTestPart::StaticClass()));
}

TEST(Object, ProcessEventCallsTheFunctionWithItsParameters)
{
	UObjectTestListener* Listener = NewObject<UObjectTestListener>();
	struct
	{
		int32 A = 2;
		int32 B = 3;
		int32 ReturnValue = 0;
	} Parms;

	Listener->ProcessEvent(Listener->FindFunctionChecked(TEXT("Add")), &Parms);

	EXPECT_EQ(Parms.ReturnValue, 5);
	EXPECT_EQ(Listener->FindFunction(TEXT("NotReflected")), nullptr);
}

TEST(ObjectDeathTest, ConstructorOutsideNewObjectIsRefused)
{
	EXPECT_DEATH({ static UObjectTestNode* Node = new UObjectTestNode; (void)Node; }, "NewObject");
}

TEST(ObjectDeathTest, AbstractClassHasNoObjects)
{
	EXPECT_DEATH(NewObject<UObjectTestAbstract>(), "is abstract");
}

TEST(ObjectDeathTest, OtherClassUnderATakenNameIsRefused)
{
	EXPECT_DEATH(
		{
			NewObject<UObjectTestNode>(TestPackage(), TEXT("Occupied"));
			NewObject<UObjectTestOwner>(TestPackage(), TEXT("Occupied"));
		},
		"is in the way of");
}
