#pragma once

#include "EngineTest.h"

#include "Blueprint/WidgetTree.h"
#include "Components/ListView.h"
#include "Components/SizeBox.h"
#include "Components/VerticalBox.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "ListTestEntry.h"
#include "RecordingUserWidget.h"
#include "UObject/UnrealType.h"

namespace Host
{
	/** A screen with a list of 200 x 100 in it, at the top left; its entries are 40 high. */
	template <typename ListType>
	class TListTest : public FEngineTest
	{
	protected:
		TListTest()
		{
			Screen = CreateWidget<URecordingUserWidget>(GEngine->GetGameInstance());
			Screen->AddToRoot();
			List = Screen->WidgetTree->template ConstructWidget<ListType>();
			USizeBox* Room = Screen->WidgetTree->ConstructWidget<USizeBox>();
			Room->SetWidthOverride(200.0f);
			Room->SetHeightOverride(100.0f);
			Room->AddChild(List);
			// It gives the list no more room than it asks for.
			UVerticalBox* Outer = Screen->WidgetTree->ConstructWidget<UVerticalBox>();
			Outer->AddChild(Room);
			Screen->WidgetTree->RootWidget = Outer;
			SetEntryClass(UListTestEntry::StaticClass());
			UListTestEntry::Events.Reset();
			UListTestEntry::NumConstructed = 0;
			UListTestEntry::NumDestructed = 0;
		}

		virtual void TearDown() override
		{
			FEngineTest::TearDown();
			Screen->RemoveFromRoot();
			UListTestEntry::Events.Reset();
		}

		/** As the designer chooses it. */
		void SetEntryClass(UClass* Class)
		{
			FindFProperty<FClassProperty>(ListType::StaticClass(), TEXT("EntryWidgetClass"))->SetObjectPropertyValue_InContainer(List, Class);
		}

		void Show()
		{
			Screen->AddToViewport();
			Loop.RunUntilIdle();
		}

		UListTestItem* MakeItem(int32 Number)
		{
			UListTestItem* Item = NewObject<UListTestItem>();
			Item->Number = Number;
			return Item;
		}

		TArray<UListTestItem*> MakeItems(int32 Count)
		{
			TArray<UListTestItem*> Made;
			for (int32 Number = 0; Number < Count; ++Number)
			{
				Made.Add(MakeItem(Number));
			}
			return Made;
		}

		void ShowItems(int32 Count)
		{
			List->SetListItems(MakeItems(Count));
			Show();
			TakeEvents();
		}

		void Frame() { Loop.RunUntilIdle(); }

		std::string TakeEvents()
		{
			const std::string Text = ToStd(FString::Join(UListTestEntry::Events, TEXT(" ")));
			UListTestEntry::Events.Reset();
			return Text;
		}

		/** Numbers of the items that are shown, in their order. */
		std::string ShownNumbers() const
		{
			std::string Text;
			for (int32 Index = 0; Index < List->GetNumItems(); ++Index)
			{
				if (const UListTestEntry* Entry = List->template GetEntryWidgetFromItem<UListTestEntry>(List->GetItemAt(Index)))
				{
					Text += (Text.empty() ? "" : " ") + std::to_string(Entry->Shown);
				}
			}
			return Text;
		}

		FVector2D MiddleOf(int32 Index) { return Driver.GetMiddle(*List->GetEntryWidgetFromItem(List->GetItemAt(Index))); }
		int32 NumberOf(const UObject* Item) const { return Item ? CastChecked<UListTestItem>(Item)->Number : -1; }

		URecordingUserWidget* Screen = nullptr;
		ListType* List = nullptr;
	};
}
