#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Host/TextInputDevice.h"

class SWidget;

namespace Host
{
	/** Text that an input method is still composing, empty when it ends, and the UTF-16 units of it before the caret. */
	DECLARE_DELEGATE_TwoParams(FOnComposition, const FString&, int32);

	/** Brings together the text that is edited and what enters text on this system. */
	class FTextInput
	{
	public:
		~FTextInput();

		/** That of the application. */
		static FTextInput& Get();

		/** Null for none. The device must outlive its use. */
		void SetDevice(FTextInputDevice* InDevice);

		/** The widget edits a text from now on. */
		void Begin(const TSharedRef<const SWidget>& InWidget, FOnComposition InOnComposition);
		/** The widget does so no more. Another one that does stays. */
		void End(const SWidget& Widget);
		/** Ends the input when the widget is gone. */
		void Validate();
		/** @param Area	in pixels of the window */
		void SetCaretArea(const SWidget& Widget, const FIntRect& Area);
		void CancelComposition(const SWidget& Widget);

		/** Hands on what is being composed. False when no text is edited. */
		bool Compose(const FString& Text, int32 Caret) const;

	private:
		bool IsOf(const SWidget& Candidate) const { return Widget.HasSameObject(&Candidate); }

		void Stop();

		TWeakPtr<const SWidget> Widget;
		FOnComposition OnComposition;
		FTextInputDevice* Device = nullptr;
		FIntRect CaretArea;
		bool bStarted = false;
	};
}
