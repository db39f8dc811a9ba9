#pragma once

#include "CoreMinimal.h"

namespace Host
{
	class FTextEditModel;

	/** What an input method has not finished yet. */
	struct FComposition
	{
		FString Text;
		/** UTF-16 units of it before the caret. */
		int32 Caret = 0;
	};

	/**
	 * What stands in the widget for a text that is edited: the text itself or, of a password, a dot for each of its characters;
	 * and in place of the selection what an input method composes.
	 */
	class FShownText
	{
	public:
		void Set(const FTextEditModel& Model, bool bInPassword, const FComposition& Composition);

		const FString& GetText() const { return Text; }
		/** Where a position of the text stands in what is shown. */
		int32 ToShown(int32 Position) const;
		/** The position of the text that is shown at a place; within the composition, where that stands. */
		int32 FromShown(int32 Shown) const;

		bool IsComposing() const { return ComposedLength > 0; }
		int32 GetCompositionBegin() const { return ComposedBegin; }
		int32 GetCompositionEnd() const { return ComposedBegin + ComposedLength; }
		/** Where the caret of the composition stands in what is shown. */
		int32 GetCompositionCaret() const { return ComposedCaret; }

	private:
		/** Of a part of the text or of the composition. */
		FString ToForm(FStringView Part) const;
		int32 GetFormLength(FStringView Part) const;

		FString Text;
		/** The text that is edited. */
		FString Source;
		bool bPassword = false;
		/** What the composition stands in place of, in the text that is edited. */
		int32 ReplacedBegin = 0;
		int32 ReplacedEnd = 0;
		int32 ComposedBegin = 0;
		int32 ComposedLength = 0;
		int32 ComposedCaret = 0;
	};
}
