#pragma once

#include "ControlTestTools.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Views/SListView.h"

/** An item of a list, with the height that its row has. */
struct FTestItem
{
	FTestItem(int32 InNumber, float InHeight) : Number(InNumber), Height(InHeight) {}

	int32 Number;
	float Height;
};

using FTestItemPtr = TSharedPtr<FTestItem>;

/** A list of 100 x 100 at the top left, whose rows show nothing but have heights. */
class FListViewTest : public FControlTest
{
protected:
	using FList = SListView<FTestItemPtr>;

	void AddItems(int32 Count, float Height = 40.0f)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Items.Add(MakeShared<FTestItem>(Items.Num(), Height));
		}
	}

	FList::FArguments Arguments()
	{
		FList::FArguments Made;
		Made.ListItemsSource(&Items)
			.OnGenerateRow_Lambda([this](FTestItemPtr Item, const TSharedRef<STableViewBase>& Table) { return MakeRow(Item, Table); })
			.OnRowReleased_Lambda([this](const TSharedRef<ITableRow>&) { ++NumReleased; })
			.OnSelectionChanged_Lambda([this](FTestItemPtr Item, ESelectInfo::Type Cause) { Note(TEXT("Select"), Item, Cause); })
			.OnMouseButtonClick_Lambda([this](FTestItemPtr Item) { Log.Add(FString::Printf(TEXT("Click:%d"), Item->Number)); });
		return Made;
	}

	void ShowList(const FList::FArguments& InArguments, float Width = 100.0f, float Height = 100.0f)
	{
		List = SArgumentNew(InArguments, FList);
		Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)
		[
			SNew(SBox).WidthOverride(Width).HeightOverride(Height)[List.ToSharedRef()]
		]);
		Move(50.0f, 10.0f);
	}

	void ShowList() { ShowList(Arguments()); }

	/** The rows in view by number and place: "3@-20 4@20". */
	std::string Rows() const
	{
		std::string Text;
		for (const FTestItemPtr& Item : Items)
		{
			if (const TSharedPtr<ITableRow> Row = Item.IsValid() ? List->WidgetFromItem(Item) : nullptr)
			{
				const FVector2f Place = Row->AsWidget()->GetCachedGeometry().GetAbsolutePosition();
				const float Along = List->GetOrientation() == Orient_Vertical ? Place.Y : Place.X;
				Text += (Text.empty() ? "" : " ") + std::to_string(Item->Number) + "@" + std::to_string(static_cast<int>(FMath::RoundToFloat(Along)));
			}
		}
		return Text;
	}

	/** Numbers of the selected items, in order of the list. */
	std::string Selected() const
	{
		std::string Text;
		for (const FTestItemPtr& Item : Items)
		{
			if (List->IsItemSelected(Item))
			{
				Text += (Text.empty() ? "" : " ") + std::to_string(Item->Number);
			}
		}
		return Text;
	}

	void PressAt(float Y, bool bControl = false, bool bShift = false)
	{
		Move(50.0f, Y);
		App().ProcessMouseButtonDownEvent(nullptr, WithModifiers(bControl, bShift));
		App().ProcessMouseButtonUpEvent(WithModifiers(bControl, bShift));
		// Not so soon that two are a double click.
		Wait(1.0);
	}

	FPointerEvent WithModifiers(bool bControl, bool bShift)
	{
		return FPointerEvent(0, Position, Position, TSet<FKey>(), EKeys::LeftMouseButton, 0.0f, Modifiers(bControl, bShift));
	}

	virtual TSharedRef<ITableRow> MakeRow(FTestItemPtr Item, const TSharedRef<STableViewBase>& Table)
	{
		++NumMade;
		return SNew(STableRow<FTestItemPtr>, Table)[SNew(SBox).WidthOverride(Item->Height).HeightOverride(Item->Height)];
	}

	void Note(const TCHAR* What, const FTestItemPtr& Item, ESelectInfo::Type Cause)
	{
		static const TCHAR* const Causes[] = {TEXT("Key"), TEXT("Navigation"), TEXT("Mouse"), TEXT("Direct")};
		Log.Add(FString::Printf(TEXT("%s:%s:%s"), What, *(Item.IsValid() ? FString::FromInt(Item->Number) : FString(TEXT("none"))), Causes[Cause]));
	}

	/** The window's list reads its items as long as it lives, which must not be longer than they. */
	virtual void TearDown() override
	{
		Show(SNullWidget::NullWidget);
		List.Reset();
	}

	TArray<FTestItemPtr> Items;
	TSharedPtr<FList> List;
	int32 NumMade = 0;
	int32 NumReleased = 0;
};
