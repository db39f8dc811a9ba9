#pragma once

#include "ControlTestTools.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Host/DrawElement.h"
#include "Host/TextInputDevice.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Layout/SBox.h"

/** Notes what a text asks of what enters text. */
class FTextInputLog final : public Host::FTextInputDevice
{
public:
	virtual void Start() override { Note(TEXT("Start")); }
	virtual void SetCaretArea(const FIntRect& Area) override { CaretArea = Area; }
	virtual void CancelComposition() override { Note(TEXT("Cancel")); }
	virtual void Stop() override { Note(TEXT("Stop")); }

	FString Take()
	{
		const FString Text = FString::Join(Calls, TEXT(" "));
		Calls.Reset();
		return Text;
	}

	FIntRect CaretArea;

private:
	void Note(const TCHAR* Call) { Calls.Add(Call); }

	TArray<FString> Calls;
};

/** A text of 200 x 30 pixels at the top left of the window, with brushes that tell its parts by their colours. */
class FEditableTextTest : public FControlTest
{
protected:
	FEditableTextTest()
	{
		Selection.TintColor = FLinearColor(1.0f, 0.0f, 0.0f);
		Caret.TintColor = FLinearColor(0.0f, 1.0f, 0.0f);
		Composing.TintColor = FLinearColor(0.0f, 0.0f, 1.0f);
	}

	SEditableText::FArguments Arguments(const TCHAR* Initial = TEXT(""))
	{
		return SEditableText::FArguments()
			.Text(FText::FromString(Initial))
			.ColorAndOpacity(FLinearColor::White)
			.BackgroundImageSelected(&Selection)
			.BackgroundImageComposing(&Composing)
			.CaretImage(&Caret)
			.OnTextChanged(FOnTextChanged::CreateLambda([this](const FText& Text) { Log.Add(TEXT("Changed:") + Text.ToString()); }))
			.OnTextCommitted(FOnTextCommitted::CreateLambda([this](const FText& Text, ETextCommit::Type Type)
			{
				const TCHAR* const Names[] = {TEXT("Default"), TEXT("Enter"), TEXT("MovedFocus"), TEXT("Cleared")};
				Log.Add(FString(Names[Type]) + TEXT(":") + Text.ToString());
			}));
	}

	/** Shows it with the focus, and the caret at the end. */
	void ShowFocused(const SEditableText::FArguments& InArguments)
	{
		ShowText(InArguments);
		App().SetKeyboardFocus(Text);
		App().Tick();
	}

	void ShowText(const SEditableText::FArguments& InArguments)
	{
		Text = SArgumentNew(InArguments, SEditableText);
		Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)
		[
			SNew(SBox).WidthOverride(200.0f).HeightOverride(30.0f)[Text.ToSharedRef()]
		]);
		Log.Reset();
	}

	std::string Content() const { return ToStd(Text->GetText()); }
	std::string Selected() const { return ToStd(Text->GetSelectedText()); }

	static FString GetClipboard()
	{
		FString Clipboard;
		FPlatformApplicationMisc::ClipboardPaste(Clipboard);
		return Clipboard;
	}

	/** The boxes drawn in the tint of a brush, from left to right. */
	TArray<Host::FPixelRect> FindBoxes(const FSlateBrush& Brush)
	{
		App().Tick();
		const FColor Tint = Brush.TintColor.GetSpecifiedColor().ToFColor(true);
		TArray<Host::FPixelRect> Boxes;
		Window->GetRoot().ForEachElement(Host::FPixelRect::Everything(), [&Boxes, Tint](TConstArrayView<Host::FDrawElement> Elements)
		{
			for (const Host::FDrawElement& Element : Elements)
			{
				if (!Element.GetRun() && Element.Colour == Tint)
				{
					Boxes.Add(Element.Bounds);
				}
			}
		});
		Boxes.Sort([](const Host::FPixelRect& A, const Host::FPixelRect& B) { return A.Left < B.Left; });
		return Boxes;
	}

	/** Left pixel of the caret; -1 when it does not show. */
	int32 GetCaretX()
	{
		const TArray<Host::FPixelRect> Boxes = FindBoxes(Caret);
		return Boxes.Num() == 1 ? Boxes[0].Left : -1;
	}

	/** The texts drawn, from the first on. */
	FString GetShown()
	{
		App().Tick();
		FString Shown;
		Window->GetRoot().ForEachElement(Host::FPixelRect::Everything(), [&Shown](TConstArrayView<Host::FDrawElement> Elements)
		{
			for (const Host::FDrawElement& Element : Elements)
			{
				Shown += Element.GetRun() ? FString(Element.GetRun()->GetText()) : FString();
			}
		});
		return Shown;
	}

	FSlateBrush Selection;
	FSlateBrush Caret;
	FSlateBrush Composing;
	TSharedPtr<SEditableText> Text;
};
