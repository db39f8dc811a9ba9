#include "EngineTest.h"

#include "BindingTestWidget.h"
#include "Components/Button.h"
#include "Components/TextBlock.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "TemporaryContent.h"
#include "gmock/gmock.h"

namespace
{
	class FWidgetBindingTest : public Host::FEngineTest
	{
	protected:
		UClass* Load(const TCHAR* Name, const char* Root, const char* Graph = nullptr)
		{
			const std::string Json = std::string("{ \"Parent\": \"/Script/BlueprintTestTypes.BindingTestWidget\",\n\"Root\": ") + Root + " }";
			Content.Write(*(FString(Name) + TEXT(".widget.json")), Json.c_str());
			if (Graph)
			{
				Content.Write(*(FString(Name) + TEXT(".lua")), Graph);
			}
			return LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/Bindings/%s.%s_C"), Name, Name));
		}

		UBindingTestWidget* Make(UClass* Class)
		{
			return CreateWidget<UBindingTestWidget>(GEngine->GetGameInstance(), Class);
		}

		Host::FTemporaryContent Content{ TEXT("/Bindings/") };
	};

	TEST_F(FWidgetBindingTest, WidgetsAreBoundByNameBeforeTheWidgetIsInitialised)
	{
		UBindingTestWidget* Widget = Make(Load(TEXT("Good"), R"({ "Class": "Button", "Name": "Action", "Children": [ { "Class": "TextBlock", "Name": "Caption" } ] })"));
		ASSERT_TRUE(Widget);
		EXPECT_TRUE(Widget->bBoundOnInitialized);
		EXPECT_EQ(Widget->Action, Widget->GetWidgetFromName(TEXT("Action")));
		EXPECT_EQ(Widget->Caption, Widget->GetWidgetFromName(TEXT("Caption")));
	}

	TEST_F(FWidgetBindingTest, OptionalWidgetMayBeMissing)
	{
		UBindingTestWidget* Widget = Make(Load(TEXT("Optional"), R"({ "Class": "Button", "Name": "Action" })"));
		ASSERT_TRUE(Widget);
		EXPECT_TRUE(Widget->Action);
		EXPECT_FALSE(Widget->Caption);
	}

	TEST_F(FWidgetBindingTest, MissingRequiredWidgetIsReportedWhenTheBlueprintIsRead)
	{
		const Host::FExpectedLog Missing(TEXT("a widget 'Action' of class Button is required by BindingTestWidget"));
		UClass* Class = Load(TEXT("Missing"), R"({ "Class": "TextBlock", "Name": "Caption" })");
		EXPECT_EQ(Missing.GetCount(), 1);
		EXPECT_THAT(Host::ToStd(Missing.GetLastLine()), testing::HasSubstr("Missing.widget.json:"));
		UBindingTestWidget* Widget = Make(Class);
		ASSERT_TRUE(Widget);
		EXPECT_FALSE(Widget->Action);
		EXPECT_TRUE(Widget->Caption);
	}

	TEST_F(FWidgetBindingTest, WidgetOfAnotherClassIsReportedAndNotBound)
	{
		const Host::FExpectedLog Wrong(TEXT("the widget 'Action' is a TextBlock, but BindingTestWidget requires a Button"));
		UBindingTestWidget* Widget = Make(Load(TEXT("Wrong"), R"({ "Class": "TextBlock", "Name": "Action" })"));
		ASSERT_TRUE(Widget);
		EXPECT_FALSE(Widget->Action);
		EXPECT_THAT(Host::ToStd(Wrong.GetLastLine()), testing::HasSubstr("Wrong.widget.json:"));
	}

	TEST_F(FWidgetBindingTest, OptionalWidgetOfAnotherClassIsReportedToo)
	{
		const Host::FExpectedLog Wrong(TEXT("the widget 'Caption' is a Spacer, but BindingTestWidget requires a TextBlock"));
		UBindingTestWidget* Widget = Make(Load(TEXT("WrongOptional"), R"({ "Class": "Button", "Name": "Action", "Children": [ { "Class": "Spacer", "Name": "Caption" } ] })"));
		ASSERT_TRUE(Widget);
		EXPECT_TRUE(Widget->Action);
		EXPECT_FALSE(Widget->Caption);
	}

	TEST_F(FWidgetBindingTest, NativeEventsAnswerNativelyUntilAGraphReplacesThem)
	{
		const char* const Root = R"({ "Class": "Button", "Name": "Action" })";
		EXPECT_EQ(Make(Load(TEXT("Native"), Root))->Decide(21), 42);
		EXPECT_EQ(Make(Load(TEXT("Scripted"), Root, "function Decide(self, value) return value + 1 end"))->Decide(21), 22);
	}

	TEST_F(FWidgetBindingTest, ANativeEventWhoseGraphFailsGivesTheDefault)
	{
		UBindingTestWidget* Widget = Make(Load(TEXT("Failing"), R"({ "Class": "Button", "Name": "Action" })", "function Decide(self, value)\n error('no idea')\nend"));
		const Host::FExpectedLog Error(TEXT("/Bindings/Failing.lua:2: no idea"));
		EXPECT_EQ(Widget->Decide(21), 0);
	}
}
