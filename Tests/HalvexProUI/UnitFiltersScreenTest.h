#pragma once

#include "UnitSceneTest.h"

class UHxExteriorUnitList;
class UListView;

/** The screen of the units with its filters, over the sample project, driven as a person does. The user's folder starts empty. */
class FUnitFiltersScreenTest : public FUnitSceneTest
{
protected:
	virtual void SetUp() override;
	virtual void TearDown() override;

	/** Shows the screen and puts the sample project's units into the scene. */
	void ShowScreen();

	/** Takes the screen away and shows it anew, as a program that starts again does. */
	void ShowScreenAgain();

	/** ShowScreen with the filters open. */
	void ShowFilters();

	/** Opens the page of saved filters. */
	void ShowStore();

	void Click(const TCHAR* Locator);

	/** Checks or unchecks a box by the keyboard, which brings it into view. */
	void Check(const TCHAR* Locator);

	/** Types a text in place of what a field holds, and presses enter. */
	void Enter(const TCHAR* Field, const TCHAR* Text);

	/** What a widget shows. */
	std::string GetText(const TCHAR* Locator) const;

	/** The texts of the chips in a box, in their order. */
	std::string GetChips(const TCHAR* Box) const;

	/** What the page of saved filters told last. */
	std::string GetMessage() const { return GetText(TEXT("MessageText")); }

	/** The units that the list shows. */
	TArray<FUnitData> GetListed() const;

	/** How many units of the scene fit. */
	int32 CountUnits(TFunctionRef<bool(const FUnitData&)> Fits) const;

	/** "37 of 262 units" of how many units fit. */
	std::string Describe(TFunctionRef<bool(const FUnitData&)> Fits) const;

	/** A place for files of this test. */
	FString GetPath(const TCHAR* Name) const;

	UUserWidget* Units = nullptr;
};
