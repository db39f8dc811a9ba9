#pragma once

#include "CoreMinimal.h"
#include "Layout/WidgetPath.h"
#include "Widgets/IToolTip.h"

class SWidget;
class SWindow;

namespace Host
{
	/** Shows the tool tip of the widget on which the cursor rests. */
	class FToolTipPresenter
	{
	public:
		/** Seconds that the cursor rests before it comes. */
		static constexpr double Delay = 0.5;

		~FToolTipPresenter();

		/** The cursor is over these widgets, at this position. */
		void Update(const FWidgetPath& Hovered, FVector2f Position);
		/** Shows it when it is time. */
		void Tick();
		/** Takes it away; it comes again after the delay. */
		void Close();
		/** Seconds on the clock when it is to be shown; infinite when none is waited for. */
		double GetShowTime() const;

	private:
		void Show();
		TSharedPtr<SWidget> MakeContent();

		TWeakPtr<SWidget> Owner;
		TWeakPtr<SWindow> Window;
		TSharedPtr<SWidget> Layer;
		TSharedPtr<IToolTip> Shown;
		FVector2f Place = FVector2f(0.0f, 0.0f);
		double RestingSince = 0.0;
	};
}
