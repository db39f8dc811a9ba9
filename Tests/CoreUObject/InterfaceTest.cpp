#include "ObjectTestInterface.h"
#include "ObjectTestNode.h"
#include "UObject/UObjectGlobals.h"
#include "gtest/gtest.h"

TEST(Interface, ImplementersAreKnownWithTheirDerivedClasses)
{
	EXPECT_TRUE(NewObject<UObjectTestImplementer>()->Implements<UObjectTestNamed>());
	EXPECT_TRUE(NewObject<UObjectTestDerivedImplementer>()->Implements<UObjectTestNamed>());
	EXPECT_FALSE(NewObject<UObjectTestImplementer>()->Implements<UObjectTestUnused>());
	EXPECT_FALSE(NewObject<UObjectTestNode>()->Implements<UObjectTestNamed>());
	EXPECT_TRUE(UObjectTestDerivedImplementer::StaticClass()->ImplementsInterface(UObjectTestNamed::StaticClass()));
}

TEST(Interface, AddressIsThatOfTheNativePart)
{
	UObjectTestImplementer* Object = NewObject<UObjectTestImplementer>();

	EXPECT_EQ(Object->GetInterfaceAddress(UObjectTestNamed::StaticClass()), static_cast<IObjectTestNamed*>(Object));
	EXPECT_EQ(Object->GetInterfaceAddress(UObjectTestUnused::StaticClass()), nullptr);
	EXPECT_EQ(Object->GetInterfaceAddress(nullptr), nullptr);
}

TEST(ScriptInterface, HoldsObjectAndInterface)
{
	UObjectTestImplementer* Object = NewObject<UObjectTestImplementer>();
	const TScriptInterface<IObjectTestNamed> Interface = Object;

	EXPECT_EQ(Interface.GetObject(), Object);
	EXPECT_EQ(Interface->GetDisplayName(), FString(TEXT("implementer")));
	EXPECT_TRUE(static_cast<bool>(Interface));
}

TEST(ScriptInterface, IsMadeOfAnInterfacePointerToo)
{
	UObjectTestImplementer* Object = NewObject<UObjectTestImplementer>();
	IObjectTestNamed* Native = Object;
	const TScriptInterface<IObjectTestNamed> Interface = Native;

	EXPECT_EQ(Interface.GetObject(), Object);
	EXPECT_EQ(Interface.GetInterface(), Native);
}

TEST(ScriptInterface, OfANonImplementerHasNoInterface)
{
	const TScriptInterface<IObjectTestNamed> Interface = NewObject<UObjectTestNode>();

	EXPECT_NE(Interface.GetObject(), nullptr);
	EXPECT_EQ(Interface.GetInterface(), nullptr);
	EXPECT_FALSE(static_cast<bool>(Interface));
}

TEST(ScriptInterface, KeepsItsObjectAlive)
{
	UObjectTestInterfaceHolder* Holder = NewObject<UObjectTestInterfaceHolder>();
	Holder->AddToRoot();
	Holder->Named = NewObject<UObjectTestImplementer>();
	const TWeakObjectPtr<UObject> Weak = Holder->Named.GetObject();

	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
	Holder->Named = nullptr;
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());

	Holder->RemoveFromRoot();
}
