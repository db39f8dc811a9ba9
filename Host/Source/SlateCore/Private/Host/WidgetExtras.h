#pragma once

#include "CoreMinimal.h"
#include "Host/AttributeBindings.h"
#include "Host/DrawElement.h"
#include "Widgets/SWidget.h"

namespace Host
{
	class FSlateRoot;

	/** Widgets that something is done for on every frame. Entries may come and go while all are visited. */
	class FWidgetRegistry
	{
	public:
		/** Index remembers the place, and stays where it is until Remove. */
		void Add(SWidget& Widget, int32& Index);
		void Remove(int32& Index);

		/** Those that are added meanwhile are not visited. */
		void ForEach(TFunctionRef<void(SWidget&)> Visitor);

		bool IsEmpty() const { return Entries.IsEmpty(); }

		static FWidgetRegistry& WithBindings();
		static FWidgetRegistry& WithTimers();
		static FWidgetRegistry& Ticking();
		static FWidgetRegistry& Volatile();

	private:
		struct FEntry
		{
			SWidget* Widget;
			int32* Index;
		};

		TArray<FEntry> Entries;
		int32 VisitDepth = 0;
		bool bHasHoles = false;
	};

	/** What few widgets have, so that the others need no room for it. */
	struct FWidgetExtras
	{
		explicit FWidgetExtras(SWidget& InOwner) : Owner(InOwner) {}
		~FWidgetExtras();

		SWidget& Owner;
		/** Of the topmost widget of a root. */
		FSlateRoot* Root = nullptr;

		TOptional<FSlateRenderTransform> RenderTransform;
		FVector2D RenderTransformPivot = FVector2D(0.0, 0.0);
		TArray<FDrawElement> OverElements;
		TArray<TUniquePtr<FAttributeBinding>> Bindings;
		TArray<TSharedRef<FActiveTimerHandle>> Timers;
		TArray<TSharedRef<ISlateMetaData>> MetaData;
		FName Tag;

		TAttribute<FText> ToolTipText;
		TAttribute<TSharedPtr<IToolTip>> ToolTip;
		TAttribute<TOptional<EMouseCursor::Type>> Cursor;

		FPointerEventHandler OnMouseButtonDown;
		FPointerEventHandler OnMouseButtonUp;
		FPointerEventHandler OnMouseMove;
		FPointerEventHandler OnMouseDoubleClick;
		FNoReplyPointerEventHandler OnMouseEnter;
		FSimpleNoReplyPointerEventHandler OnMouseLeave;

		int32 BindingsIndex = INDEX_NONE;
		int32 TimersIndex = INDEX_NONE;
		int32 TickIndex = INDEX_NONE;
		int32 VolatileIndex = INDEX_NONE;

		static FWidgetExtras* Find(const SWidget& Widget) { return Widget.Extras.Get(); }
		static FWidgetExtras& Get(const SWidget& Widget) { return Widget.GetExtras(); }
	};
}
