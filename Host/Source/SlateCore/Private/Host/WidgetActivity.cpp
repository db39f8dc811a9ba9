#include "Host/WidgetActivity.h"

#include <limits>

#include "Application/SlateApplicationBase.h"
#include "HAL/PlatformTime.h"
#include "Host/AttributeBindings.h"
#include "Host/SlateCounters.h"
#include "Host/WidgetExtras.h"
#include "Host/WidgetPasses.h"

namespace Host
{
	namespace
	{
		void RunTimers(double CurrentTime)
		{
			FWidgetRegistry::WithTimers().ForEach([CurrentTime](SWidget& Widget)
			{
				const TSharedRef<SWidget> KeepAlive = Widget.AsShared();
				FWidgetExtras& Extras = FWidgetExtras::Get(Widget);
				const TArray<TSharedRef<FActiveTimerHandle>> Timers = Extras.Timers;
				for (const TSharedRef<FActiveTimerHandle>& Timer : Timers)
				{
					Timer->Execute(CurrentTime);
				}
				Extras.Timers.RemoveAll([](const TSharedRef<FActiveTimerHandle>& Timer) { return !Timer->IsActive(); });
				if (Extras.Timers.IsEmpty())
				{
					FWidgetRegistry::WithTimers().Remove(Extras.TimersIndex);
				}
			});
		}

		void Tick(double CurrentTime, float DeltaTime)
		{
			FWidgetRegistry::Ticking().ForEach([CurrentTime, DeltaTime](SWidget& Widget)
			{
				if (FWidgetPasses::IsInView(Widget))
				{
					const TSharedRef<SWidget> KeepAlive = Widget.AsShared();
					++FSlateCounters::Get().Ticked;
					Widget.Tick(Widget.GetCachedGeometry(), CurrentTime, DeltaTime);
				}
			});
		}
	}

	void FWidgetActivity::BeginFrame(double CurrentTime, float DeltaTime)
	{
		RunTimers(CurrentTime);
		FAttributeBindings::UpdateAll();
		Tick(CurrentTime, DeltaTime);
		FWidgetRegistry::Volatile().ForEach([](SWidget& Widget) { Widget.Invalidate(EInvalidateWidgetReason::Paint); });
	}

	double FWidgetActivity::GetNextTimerTime()
	{
		double Next = std::numeric_limits<double>::infinity();
		FWidgetRegistry::WithTimers().ForEach([&Next](SWidget& Widget)
		{
			for (const TSharedRef<FActiveTimerHandle>& Timer : FWidgetExtras::Get(Widget).Timers)
			{
				Next = FMath::Min(Next, Timer->GetNextTime());
			}
		});
		return Next;
	}

	double FWidgetActivity::GetCurrentTime()
	{
		return FSlateApplicationBase::IsInitialized() ? FSlateApplicationBase::Get().GetCurrentTime() : FPlatformTime::Seconds();
	}
}

void FActiveTimerHandle::Execute(double CurrentTime)
{
	if (!bActive || CurrentTime < NextTime)
	{
		return;
	}
	const float Elapsed = static_cast<float>(CurrentTime - LastTime);
	LastTime = CurrentTime;
	NextTime += Period;
	if (NextTime <= CurrentTime)
	{
		NextTime = CurrentTime + Period;
	}
	if (!Function.IsBound() || Function.Execute(CurrentTime, Elapsed) == EActiveTimerReturnType::Stop)
	{
		bActive = false;
	}
}
