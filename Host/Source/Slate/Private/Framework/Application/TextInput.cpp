#include "Framework/Application/TextInput.h"

#include "Framework/Application/SlateApplication.h"

namespace Host
{
	FTextInput::~FTextInput()
	{
		SetDevice(nullptr);
	}

	FTextInput& FTextInput::Get()
	{
		return *FSlateApplication::Get().TextInput;
	}

	void FTextInput::SetDevice(FTextInputDevice* InDevice)
	{
		if (Device && bStarted)
		{
			Device->Stop();
		}
		Device = InDevice;
		if (Device && bStarted)
		{
			Device->Start();
			Device->SetCaretArea(CaretArea);
		}
	}

	void FTextInput::Begin(const TSharedRef<const SWidget>& InWidget, FOnComposition InOnComposition)
	{
		Stop();
		Widget = InWidget;
		OnComposition = MoveTemp(InOnComposition);
		CaretArea = FIntRect();
		bStarted = true;
		if (Device)
		{
			Device->Start();
		}
	}

	void FTextInput::End(const SWidget& InWidget)
	{
		if (IsOf(InWidget))
		{
			Stop();
		}
	}

	void FTextInput::Validate()
	{
		if (bStarted && !Widget.IsValid())
		{
			Stop();
		}
	}

	void FTextInput::Stop()
	{
		if (!bStarted)
		{
			return;
		}
		bStarted = false;
		Widget.Reset();
		OnComposition.Unbind();
		if (Device)
		{
			Device->Stop();
		}
	}

	void FTextInput::SetCaretArea(const SWidget& InWidget, const FIntRect& Area)
	{
		if (!IsOf(InWidget) || CaretArea == Area)
		{
			return;
		}
		CaretArea = Area;
		if (Device)
		{
			Device->SetCaretArea(Area);
		}
	}

	void FTextInput::CancelComposition(const SWidget& InWidget)
	{
		if (Device && IsOf(InWidget))
		{
			Device->CancelComposition();
		}
	}

	bool FTextInput::Compose(const FString& Text, int32 Caret) const
	{
		// The handler may end the input.
		const FOnComposition Handler = OnComposition;
		return Handler.ExecuteIfBound(Text, Caret);
	}
}
