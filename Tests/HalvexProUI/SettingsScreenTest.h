#pragma once

#include "EngineTest.h"

#include "Components/ComboBoxString.h"
#include "RestoredVariable.h"

class UGameUserSettings;
class UUserWidget;

/** The settings screens as a user finds them, in a window of the screen's size that was confirmed. */
class FSettingsScreenTest : public Host::FEngineTest
{
protected:
	virtual void SetUp() override;
	virtual void TearDown() override;

	static UGameUserSettings& Settings();

	void ShowScreen(const TCHAR* Name);

	/** The combo box of a row. */
	UComboBoxString& GetBox(const TCHAR* Row) const;
	std::string GetChoice(const TCHAR* Row) const { return Host::ToStd(GetBox(Row).GetSelectedOption()); }

	/** Chooses an option of a row with the mouse. */
	void Choose(const TCHAR* Row, const TCHAR* Option);

	/** Turns a row on or off with the mouse. */
	void Toggle(const TCHAR* Row);

	void Click(const TCHAR* Locator);
	bool IsShown(const TCHAR* Locator) const { return Driver.Count(Locator) == 1; }

	/** Whether the video mode is being counted down. */
	bool IsCounting() const { return IsShown(TEXT("VideoModeBar")); }
	bool IsWaiting() const { return IsShown(TEXT("ConfirmBar")); }

	/** The size of the window in pixels. */
	FIntPoint GetWindowSize() const;

	/** What is saved of the user settings; empty for what is not. */
	static std::string ReadSaved(const TCHAR* Section, const TCHAR* Key);

	static const FIntPoint FirstSize;
	static const FIntPoint OtherSize;

private:
	const Host::FRestoredVariable ScreenPercentage{ TEXT("r.ScreenPercentage") };
};
