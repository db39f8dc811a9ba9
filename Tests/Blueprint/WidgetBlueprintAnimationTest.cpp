#include "EngineTest.h"

#include "AnimationBindings.h"
#include "Animation/WidgetAnimation.h"
#include "Components/Image.h"
#include "Components/TextBlock.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "TemporaryContent.h"
#include "UObject/UnrealType.h"
#include "gmock/gmock.h"

namespace
{
	class FWidgetBlueprintAnimationTest : public Host::FEngineTest
	{
	protected:
		/** Loads a blueprint of a picture and a label, with the members given besides, and shows a widget of it. */
		UUserWidget* Show(const TCHAR* Name, const char* Members, const char* Graph = nullptr)
		{
			const std::string Json = std::string("{\n") + Members + R"(,
				"Root": { "Class": "VerticalBox", "Children": [
					{ "Class": "Image", "Name": "Picture", "Properties": { "ColorAndOpacity": "#204060" } },
					{ "Class": "TextBlock", "Name": "Label", "Properties": { "Text": "waiting" } }
				] } })";
			Content.Write(*(FString(Name) + TEXT(".widget.json")), Json.c_str());
			if (Graph)
			{
				Content.Write(*(FString(Name) + TEXT(".lua")), Graph);
			}
			UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/Animations/%s.%s_C"), Name, Name));
			UUserWidget* Widget = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class);
			Widget->AddToViewport();
			return Widget;
		}

		/** Shows a blueprint with one track that is wrong and a right one, and checks that the latter plays. */
		void ExpectTheRestToPlay(const TCHAR* Name, const std::string& WrongTrack)
		{
			const std::string Members = "\"Animations\": { \"Fade\": { \"Tracks\": [\n" + WrongTrack + R"(,
				{ "Widget": "Label", "Property": "RenderOpacity", "Keys": [ { "Time": 0, "Value": 0.5 }, { "Time": 1, "Value": 1 } ] } ] } })";
			UUserWidget* Widget = Show(Name, Members.c_str());
			Widget->PlayAnimation(GetAnimation(*Widget, TEXT("Fade")));
			Widget->FlushAnimations();
			EXPECT_EQ(Widget->GetWidgetFromName(TEXT("Label"))->GetRenderOpacity(), 0.5f);
		}

		static UWidgetAnimation* GetAnimation(const UUserWidget& Widget, FName Name)
		{
			const FObjectProperty* Property = FindFProperty<FObjectProperty>(Widget.GetClass(), Name);
			return Property ? Cast<UWidgetAnimation>(Property->GetObjectPropertyValue_InContainer(&Widget)) : nullptr;
		}

		static UImage* GetPicture(const UUserWidget& Widget) { return CastChecked<UImage>(Widget.GetWidgetFromName(TEXT("Picture"))); }
		static std::string GetLabel(const UUserWidget& Widget) { return Host::ToStd(CastChecked<UTextBlock>(Widget.GetWidgetFromName(TEXT("Label")))->GetText()); }

		Host::FTemporaryContent Content{ TEXT("/Animations/") };
	};

	const char* const Fade = R"("Animations": { "Fade": { "Tracks": [
		{ "Widget": "Picture", "Property": "RenderOpacity", "Keys": [ { "Time": 0, "Value": 0 }, { "Time": 0.5, "Value": 1 } ] } ] } })";

	TEST_F(FWidgetBlueprintAnimationTest, GraphsPlayTheAnimationsOfTheirClass)
	{
		UUserWidget* Widget = Show(TEXT("Plays"), Fade, "function Construct(self) self:PlayAnimation(self.Fade) end");
		Loop.RunFrame(0.125);
		EXPECT_EQ(GetPicture(*Widget)->GetRenderOpacity(), 0.0f);
		Loop.RunFrame(0.125);
		EXPECT_EQ(GetPicture(*Widget)->GetRenderOpacity(), 0.25f);
		Loop.RunFrame(1.0);
		EXPECT_EQ(GetPicture(*Widget)->GetRenderOpacity(), 1.0f);
		EXPECT_FALSE(Widget->IsAnyAnimationPlaying());
	}

	TEST_F(FWidgetBlueprintAnimationTest, GraphsPassWhatIsNotTheDefault)
	{
		UUserWidget* Widget = Show(TEXT("Passes"), Fade, "function Construct(self) self:PlayAnimation(self.Fade, 0.125, 0, 'Reverse', 0.5, true) end");
		Loop.RunFrame(0.125);
		EXPECT_EQ(GetPicture(*Widget)->GetRenderOpacity(), 0.75f);
		Loop.RunFrame(0.25);
		EXPECT_EQ(GetPicture(*Widget)->GetRenderOpacity(), 0.5f);
		Widget->StopAllAnimations();
		EXPECT_EQ(GetPicture(*Widget)->GetRenderOpacity(), 1.0f);
	}

	TEST_F(FWidgetBlueprintAnimationTest, GraphsTakeThePlaceOfTheEvents)
	{
		UUserWidget* Widget = Show(TEXT("Events"), Fade, R"(
			function Construct(self) self:PlayAnimation(self.Fade) end
			function OnAnimationStarted(self, Animation) self.Label:SetText(Animation == self.Fade and 'started' or 'another') end
			function OnAnimationFinished(self, Animation) self.Label:SetText(Animation == self.Fade and 'finished' or 'another') end)");
		EXPECT_EQ(GetLabel(*Widget), "started");
		Loop.RunFrame(0.125);
		Loop.RunFrame(0.5);
		EXPECT_EQ(GetLabel(*Widget), "finished");
	}

	TEST_F(FWidgetBlueprintAnimationTest, GraphsListenForTheEnd)
	{
		UUserWidget* Widget = Show(TEXT("Listens"), Fade, R"(
			function Construct(self)
				self:BindToAnimationFinished(self.Fade, function() self.Label:SetText('heard') end)
				self:PlayAnimationForward(self.Fade)
			end)");
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		Loop.RunFrame(0.125);
		EXPECT_EQ(GetLabel(*Widget), "waiting");
		Loop.RunFrame(0.5);
		EXPECT_EQ(GetLabel(*Widget), "heard");
	}

	TEST_F(FWidgetBlueprintAnimationTest, InstancesShareTheAnimationAndPlayItOnTheirOwnWidgets)
	{
		UUserWidget* First = Show(TEXT("Shared"), Fade);
		UUserWidget* Second = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), First->GetClass());
		EXPECT_NE(GetAnimation(*First, TEXT("Fade")), nullptr);
		EXPECT_EQ(GetAnimation(*First, TEXT("Fade")), GetAnimation(*Second, TEXT("Fade")));
		First->PlayAnimation(GetAnimation(*First, TEXT("Fade")));
		First->FlushAnimations();
		EXPECT_EQ(GetPicture(*First)->GetRenderOpacity(), 0.0f);
		EXPECT_EQ(GetPicture(*Second)->GetRenderOpacity(), 1.0f);
	}

	TEST_F(FWidgetBlueprintAnimationTest, ValuesHaveTheFormsOfProperties)
	{
		UUserWidget* Widget = Show(TEXT("Values"), R"("Animations": { "All": { "Duration": 2, "Tracks": [
			{ "Property": "RenderOpacity", "Keys": [ { "Time": 0, "Value": 0.5, "Interpolation": "Cubic" } ] },
			{ "Widget": "Picture", "Property": "ColorAndOpacity", "Keys": [ { "Time": 0, "Value": "#FF0000" }, { "Time": 1, "Value": { "G": 1 } } ] },
			{ "Widget": "Picture", "Property": "RenderTransform.Translation", "Keys": [ { "Time": 0, "Value": [10, 20] } ] },
			{ "Widget": "Label", "Property": "ColorAndOpacity", "Keys": [ { "Time": 0, "Value": "#00FF00" } ] },
			{ "Widget": "Label", "Property": "Visibility", "Keys": [ { "Time": 0, "Value": "Hidden" } ] },
			{ "Widget": "Label", "Property": "Slot.Padding", "Keys": [ { "Time": 0, "Value": [1, 2, 3, 4] } ] } ] } })");
		UWidgetAnimation* All = GetAnimation(*Widget, TEXT("All"));
		EXPECT_EQ(All->GetEndTime(), 2.0f);
		const FLinearColor Written = GetPicture(*Widget)->GetColorAndOpacity();
		Widget->PlayAnimation(All);
		Widget->FlushAnimations();
		EXPECT_EQ(Widget->GetRenderOpacity(), 0.5f);
		EXPECT_EQ(GetPicture(*Widget)->GetColorAndOpacity(), FLinearColor(1.0f, 0.0f, 0.0f, 1.0f));
		EXPECT_EQ(GetPicture(*Widget)->GetRenderTransform().Translation, FVector2D(10.0, 20.0));
		const UTextBlock* Label = CastChecked<UTextBlock>(Widget->GetWidgetFromName(TEXT("Label")));
		EXPECT_EQ(Label->GetColorAndOpacity(), FSlateColor(FLinearColor(0.0f, 1.0f, 0.0f, 1.0f)));
		EXPECT_EQ(Label->GetVisibility(), ESlateVisibility::Hidden);
		Widget->SetAnimationCurrentTime(All, 1.0f);
		Widget->FlushAnimations();
		EXPECT_EQ(GetPicture(*Widget)->GetColorAndOpacity(), FLinearColor(Written.R, 1.0f, Written.B, 1.0f)) << "members that a key leaves out are those of the widget";
	}

	TEST_F(FWidgetBlueprintAnimationTest, NativeParentsGetTheirAnimations)
	{
		UUserWidget* Widget = Show(TEXT("Bound"), R"("Parent": "/Script/BlueprintTestTypes.BoundAnimationsWidget",
			"Animations": { "Intro": { "Tracks": [] }, "Extra": { "Tracks": [] } })",
			"function OnInitialized(self) self.Label:SetText(tostring(self.Intro) .. ' ' .. tostring(self.Extra) .. ' ' .. tostring(self.Outro)) end");
		const UBoundAnimationsWidget* Bound = CastChecked<UBoundAnimationsWidget>(Widget);
		EXPECT_EQ(Bound->Intro, GetAnimation(*Widget, TEXT("Intro")));
		EXPECT_NE(Bound->Intro, nullptr);
		EXPECT_EQ(Bound->Outro, nullptr);
		EXPECT_EQ(GetLabel(*Widget), "Intro Extra nil");
	}

	TEST_F(FWidgetBlueprintAnimationTest, BlueprintsPlayTheAnimationsOfTheBlueprintTheyDeriveFrom)
	{
		Show(TEXT("AnimatedBase"), Fade);
		Content.Write(TEXT("AnimatedChild.widget.json"), R"({ "Parent": "/Animations/AnimatedBase.AnimatedBase",
			"Animations": { "Blink": { "Tracks": [ { "Widget": "Label", "Property": "RenderOpacity", "Keys": [ { "Time": 0, "Value": 0.25 } ] } ] } } })");
		UUserWidget* Widget = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), LoadObject<UClass>(nullptr, TEXT("/Animations/AnimatedChild.AnimatedChild_C")));
		Widget->PlayAnimation(GetAnimation(*Widget, TEXT("Fade")));
		Widget->PlayAnimation(GetAnimation(*Widget, TEXT("Blink")));
		Widget->FlushAnimations();
		EXPECT_EQ(GetPicture(*Widget)->GetRenderOpacity(), 0.0f);
		EXPECT_EQ(Widget->GetWidgetFromName(TEXT("Label"))->GetRenderOpacity(), 0.25f);
	}

	TEST_F(FWidgetBlueprintAnimationTest, RequiredAnimationThatIsMissingIsOneLine)
	{
		const Host::FExpectedLog Missing(TEXT("Missing.widget.json:1:1: an animation 'Intro' is required by BoundAnimationsWidget."));
		Show(TEXT("Missing"), R"("Parent": "/Script/BlueprintTestTypes.BoundAnimationsWidget")");
	}

	TEST_F(FWidgetBlueprintAnimationTest, PropertyThatCannotHoldAnAnimationIsOneLine)
	{
		const Host::FExpectedLog WrongClass(TEXT("'NoAnimation' of MisboundAnimationWidget is to be bound to an animation, but is a TextBlock."));
		Show(TEXT("Misbound"), R"("Parent": "/Script/BlueprintTestTypes.MisboundAnimationWidget")");
	}

	TEST_F(FWidgetBlueprintAnimationTest, NamesThatAreTakenAreOneLineEach)
	{
		const Host::FExpectedLog Variable(TEXT("there is a property 'Count' already, which is no animation."));
		const Host::FExpectedLog Function(TEXT("there is a function or an animation 'Act' already."));
		UUserWidget* Widget = Show(TEXT("Taken"), R"("Variables": { "Count": { "Type": "int" } }, "Animations": { "Count": { "Tracks": [] }, "Act": { "Tracks": [] } })", "function Act(self) end");
		EXPECT_EQ(GetAnimation(*Widget, TEXT("Act")), nullptr);
	}

	TEST_F(FWidgetBlueprintAnimationTest, WrongFormsAreOneLineEach)
	{
		const Host::FExpectedLog Whole(TEXT("Forms1.widget.json:2:15: \"Animations\" must be an object of animations by name."));
		Show(TEXT("Forms1"), R"("Animations": [ 1 ])");
		const Host::FExpectedLog NoTracks(TEXT("Forms2.widget.json:2:22: an animation needs \"Tracks\": an array of tracks."));
		const Host::FExpectedLog Duration(TEXT("\"Duration\" must be a time in seconds, more than 0."));
		const Host::FExpectedLog Unknown(TEXT("an animation has no member \"Speed\"."));
		const Host::FExpectedLog Track(TEXT("a track must be an object, not a number."));
		Show(TEXT("Forms2"), R"("Animations": { "A": {}, "B": { "Duration": -1, "Speed": 2, "Tracks": [ 7 ] } })");
	}

	struct FWrongTrack
	{
		const TCHAR* Name;
		/** On the second line of the animation. */
		const char* Track;
		const TCHAR* Message;
	};

	const FWrongTrack WrongTracks[] = {
		{ TEXT("UnknownWidget"), R"({ "Widget": "Nobody", "Property": "RenderOpacity", "Keys": [ { "Time": 0, "Value": 1 } ] })", TEXT(":3:13: there is no widget 'Nobody'.") },
		{ TEXT("OddWidget"), R"({ "Widget": 7, "Property": "RenderOpacity", "Keys": [ { "Time": 0, "Value": 1 } ] })", TEXT(":3:13: \"Widget\" must be the name of one.") },
		{ TEXT("UnknownProperty"), R"({ "Widget": "Picture", "Property": "Sparkle", "Keys": [ { "Time": 0, "Value": 1 } ] })", TEXT(":3:36: Image has no property 'Sparkle'.") },
		{ TEXT("UnknownPart"), R"({ "Widget": "Picture", "Property": "RenderTransform.Spin", "Keys": [ { "Time": 0, "Value": 1 } ] })", TEXT(":3:36: 'RenderTransform', a FWidgetTransform, has no part 'Spin'.") },
		{ TEXT("NoProperty"), R"({ "Widget": "Picture", "Keys": [ { "Time": 0, "Value": 1 } ] })", TEXT(":3:1: a track needs a \"Property\": the name of one.") },
		{ TEXT("UnsuitableProperty"), R"({ "Widget": "Label", "Property": "Text", "Keys": [ { "Time": 0, "Value": "x" } ] })", TEXT(":3:34: 'Text' is a FText, which cannot be animated.") },
		{ TEXT("NoSetter"), R"({ "Widget": "Label", "Property": "Slot.Parent.RenderOpacity.X", "Keys": [ { "Time": 0, "Value": 1 } ] })", TEXT(":3:34: 'RenderOpacity', a float, has no part 'X'.") },
		{ TEXT("NoKeys"), R"({ "Widget": "Picture", "Property": "RenderOpacity", "Keys": [] })", TEXT(":3:61: a track needs \"Keys\": an array of one or more.") },
		{ TEXT("OddKey"), R"({ "Widget": "Picture", "Property": "RenderOpacity", "Keys": [ 3 ] })", TEXT(":3:63: a key must be an object, not a number.") },
		{ TEXT("NoTime"), R"({ "Widget": "Picture", "Property": "RenderOpacity", "Keys": [ { "Value": 1 } ] })", TEXT(":3:63: a key needs a \"Time\" in seconds.") },
		{ TEXT("NegativeTime"), R"({ "Widget": "Picture", "Property": "RenderOpacity", "Keys": [ { "Time": -0.5, "Value": 1 } ] })", TEXT(":3:73: the time of a key must not be negative.") },
		{ TEXT("KeyOrder"), R"({ "Widget": "Picture", "Property": "RenderOpacity", "Keys": [ { "Time": 1, "Value": 1 }, { "Time": 0.5, "Value": 1 } ] })", TEXT(":3:100: the keys must be in the order of their times") },
		{ TEXT("NoValue"), R"({ "Widget": "Picture", "Property": "RenderOpacity", "Keys": [ { "Time": 1 } ] })", TEXT(":3:63: a key needs a \"Value\".") },
		{ TEXT("WrongValue"), R"({ "Widget": "Picture", "Property": "RenderOpacity", "Keys": [ { "Time": 1, "Value": "much" } ] })", TEXT(":3:85:") },
		{ TEXT("UnknownInterpolation"), R"({ "Widget": "Picture", "Property": "RenderOpacity", "Keys": [ { "Time": 1, "Value": 1, "Interpolation": "Bouncy" } ] })", TEXT(":3:105: \"Interpolation\" must be \"Constant\", \"Linear\" or \"Cubic\".") },
		{ TEXT("BetweenEnumerators"), R"({ "Widget": "Picture", "Property": "Visibility", "Keys": [ { "Time": 1, "Value": "Hidden", "Interpolation": "Linear" } ] })", TEXT(":3:109: there is nothing between enumerators") },
		{ TEXT("UnknownMember"), R"({ "Widget": "Picture", "Property": "RenderOpacity", "Curve": 1, "Keys": [ { "Time": 1, "Value": 1 } ] })", TEXT(":3:62: a track has no member \"Curve\".") },
	};

	class FWrongTrackTest : public FWidgetBlueprintAnimationTest, public testing::WithParamInterface<FWrongTrack>
	{
	};

	TEST_P(FWrongTrackTest, IsOneLineWithItsPlaceAndTheRestPlays)
	{
		const Host::FExpectedLog Wrong(GetParam().Message);
		ExpectTheRestToPlay(GetParam().Name, GetParam().Track);
	}

	INSTANTIATE_TEST_SUITE_P(Blueprint, FWrongTrackTest, testing::ValuesIn(WrongTracks), [](const testing::TestParamInfo<FWrongTrack>& Info) { return Host::ToStd(FString(Info.param.Name)); });
}
