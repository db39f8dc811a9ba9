#pragma once

#include "Blueprint/WidgetTree.h"
#include "EngineTest.h"
#include "Host/DrawElement.h"
#include "KitTestRecorder.h"
#include "KitTestScreen.h"
#include "UObject/StrongObjectPtr.h"

class UButton;
class UHxButton;
class UHxButtonGroup;
struct FButtonStyle;

/** Shows widgets of the kit on an empty screen, drives them as a user would, and writes down their events. */
class FKitTest : public Host::FEngineTest
{
protected:
	virtual void SetUp() override;
	virtual void TearDown() override;

	/** Goes on with an empty screen that is not shown yet. */
	void StartScreen();

	/** Makes a widget of the screen's tree. */
	template <typename T>
	T* Make(const TCHAR* Name = TEXT(""))
	{
		return Screen->WidgetTree->ConstructWidget<T>(T::StaticClass(), FName(Name));
	}

	/** Puts a widget on the screen, in pixels; with no size it takes the one that it asks for. */
	void Place(UWidget& Widget, double X, double Y, FVector2D Size = FVector2D(0.0, 0.0));

	/** Shows the screen. */
	void Show();

	/** Shows the screen as the designer does. */
	void ShowInDesigner();

	/** Lets the frames pass in which what changed is painted. */
	void Settle() { Loop.RunUntilIdle(); }

	void MoveTo(const UWidget& Widget) { Driver.MoveTo(Driver.GetMiddle(Widget)); }
	void MoveAway();
	void Click(const UWidget& Widget) { Driver.ClickAt(Driver.GetMiddle(Widget)); }

	/** Binds the recorder to the button's selection change and its click with identifier. */
	void Listen(UHxButton& Button);
	void ListenToHover(UButton& Button);
	void Listen(UHxButtonGroup& Group);

	/** The events that came since the last call. */
	std::string TakeEvents() { return Host::ToStd(Recorder->Take()); }

	/** What is painted within the widget's area, lowest first. */
	TArray<Host::FDrawElement> GetPainted(const UWidget& Widget) const;

	/** Colour of the lowest box or the first text that is painted within the widget's area, as RRGGBBAA; "nothing" without one. */
	std::string GetPaintedBoxColour(const UWidget& Widget) const;
	std::string GetPaintedTextColour(const UWidget& Widget) const;

	/** The text painted within the widget's area. */
	std::string GetPaintedText(const UWidget& Widget) const;

	/** Size in pixels of the lowest box painted within the widget's area. */
	FVector2D GetPaintedBoxSize(const UWidget& Widget) const;

	/** A style whose brushes tell, by their tint, which of them is painted. */
	static FButtonStyle MakeTellingStyle();

	/** Which brush of MakeTellingStyle() is painted: "normal", "hovered", "pressed" or "disabled"; the colour where it is none of them. */
	std::string GetLook(const UButton& Button) const;

	TStrongObjectPtr<UKitTestScreen> Screen;
	TStrongObjectPtr<UKitTestRecorder> Recorder;
};
