#pragma once

#include "CoreMinimal.h"
#include "UObject/StrongObjectPtr.h"

class SDesignSurface;
class UUserWidget;
class UWidget;
class UWorld;

namespace Host
{
	class FContentWatch;
	class FJsonNode;

	/**
	 * Shows a user widget as a designer sees it: a preview of which every part knows that it is design time, in a world of its own where no time passes.
	 * It is pre-constructed and synchronised, but neither initialised for play nor constructed; nothing in it ticks, and no input reaches it.
	 *
	 * An edit changes a property of a widget of the preview, with the notifications of a details panel (see FPropertyEdit), and
	 * the preview follows at once: the widget is synchronised, and where that is not enough the preview's Slate side is made
	 * anew, namely for a property marked DesignerRebuild and for any property of a user widget, which may use it when it is
	 * pre-constructed. Edits are of the preview only; its file stays as it is.
	 */
	class BLUEPRINT_API FWidgetDesigner
	{
	public:
		FWidgetDesigner();
		~FWidgetDesigner();
		FWidgetDesigner(const FWidgetDesigner&) = delete;
		FWidgetDesigner& operator=(const FWidgetDesigner&) = delete;

		/**
		 * Makes a preview of a class of user widgets, in place of the one before. False with the reason, and with that one as it
		 * was, when there is no such class or nothing can be made of it.
		 * @param ClassPath "/Mount/Dir/Name.Name_C" or "/Script/Module.Name"
		 */
		bool Open(const FString& ClassPath, FString& OutReason);

		/** Ends the preview; nothing happens without one. */
		void Close();

		/** Shows the preview over the whole viewport, now and when another one is opened. */
		void Show();

		/** Takes it out of the viewport. */
		void Hide();

		/** Null before the first Open. */
		UUserWidget* GetPreview() const { return Preview.Get(); }

		/** The widget of that name in the preview's own tree; the preview for an empty name; null when there is none. */
		UWidget* FindWidget(const FString& Name) const;

		// Edits. Each returns false with the reason, and changes nothing, when there is no such widget or property, when a details
		// panel would not let it be edited, or when the value does not read as one.

		/** Sets a property of a widget, by a path such as "Slot.Padding.Left" or "Items[2].Name", from text. */
		bool Edit(const FString& WidgetName, const FString& Path, const FString& Text, FString& OutReason);

		/** As Edit, from JSON in the form that blueprints have. */
		bool EditJson(const FString& WidgetName, const FString& Path, const FJsonNode& Value, FString& OutReason);

		/** Appends a default element to an array. */
		bool AddElement(const FString& WidgetName, const FString& ArrayPath, FString& OutReason);

		/** Removes an element of an array, "Items[2]". */
		bool RemoveElement(const FString& WidgetName, const FString& ElementPath, FString& OutReason);

		/** Makes the preview's Slate side anew, with everything that is pre-constructed. */
		void Rebuild();

		/**
		 * Makes the preview anew from its file when a blueprint or a script was written since it was opened, and its Slate side
		 * when a file of another kind was that is in use. When the new file cannot be read the preview stays, after a line in the
		 * log that says why. True when something was made anew. Classes that were loaded before are loaded again by the next one
		 * who asks for them; screens in play keep theirs.
		 */
		bool ReloadIfChanged();

	private:
		template <typename EditType>
		bool EditWidget(const FString& WidgetName, const FString& Path, FString& OutReason, EditType&& EditNow);

		bool Make(const FString& ClassPath, FString& OutReason);
		void Release();

		TStrongObjectPtr<UUserWidget> Preview;
		TStrongObjectPtr<UWorld> World;
		TSharedPtr<SDesignSurface> Surface;
		TUniquePtr<FContentWatch> Watch;
		FString OpenedPath;
		bool bShown = false;
	};
}
