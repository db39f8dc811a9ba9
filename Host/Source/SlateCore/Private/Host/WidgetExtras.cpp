#include "Host/WidgetExtras.h"

namespace Host
{
	void FWidgetRegistry::Add(SWidget& Widget, int32& Index)
	{
		if (Index == INDEX_NONE)
		{
			Index = Entries.Num();
			Entries.Add(FEntry{ &Widget, &Index });
		}
	}

	void FWidgetRegistry::Remove(int32& Index)
	{
		if (Index == INDEX_NONE)
		{
			return;
		}
		if (VisitDepth > 0)
		{
			Entries[Index].Widget = nullptr;
			bHasHoles = true;
		}
		else
		{
			Entries[Index] = Entries.Last();
			*Entries[Index].Index = Index;
			Entries.Pop(EAllowShrinking::No);
		}
		Index = INDEX_NONE;
	}

	void FWidgetRegistry::ForEach(TFunctionRef<void(SWidget&)> Visitor)
	{
		++VisitDepth;
		for (int32 Index = 0, Count = Entries.Num(); Index < Count; ++Index)
		{
			if (SWidget* Widget = Entries[Index].Widget)
			{
				Visitor(*Widget);
			}
		}
		--VisitDepth;
		if (VisitDepth > 0 || !bHasHoles)
		{
			return;
		}
		bHasHoles = false;
		Entries.RemoveAll([](const FEntry& Entry) { return Entry.Widget == nullptr; });
		for (int32 Index = 0; Index < Entries.Num(); ++Index)
		{
			*Entries[Index].Index = Index;
		}
	}

	// Never destroyed: widgets may live until the very end of the program.
	FWidgetRegistry& FWidgetRegistry::WithBindings()
	{
		static FWidgetRegistry& Registry = *new FWidgetRegistry;
		return Registry;
	}

	FWidgetRegistry& FWidgetRegistry::WithTimers()
	{
		static FWidgetRegistry& Registry = *new FWidgetRegistry;
		return Registry;
	}

	FWidgetRegistry& FWidgetRegistry::Ticking()
	{
		static FWidgetRegistry& Registry = *new FWidgetRegistry;
		return Registry;
	}

	FWidgetRegistry& FWidgetRegistry::Volatile()
	{
		static FWidgetRegistry& Registry = *new FWidgetRegistry;
		return Registry;
	}

	FWidgetExtras::~FWidgetExtras()
	{
		FWidgetRegistry::WithBindings().Remove(BindingsIndex);
		FWidgetRegistry::WithTimers().Remove(TimersIndex);
		FWidgetRegistry::Ticking().Remove(TickIndex);
		FWidgetRegistry::Volatile().Remove(VolatileIndex);
		for (const TSharedRef<FActiveTimerHandle>& Timer : Timers)
		{
			Timer->Stop();
		}
	}
}
