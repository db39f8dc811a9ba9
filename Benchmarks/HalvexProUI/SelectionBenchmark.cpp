#include "StyledWall.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxButtonGroup.h"
#include "Widgets/HxText.h"

#include <benchmark/benchmark.h>

namespace
{
	constexpr int32 Thousand = 1000;

	/** A click on one of a group of 1,000 buttons, of which one is selected at most; painted, without pixels. */
	void ClickInAGroupOfAThousand(benchmark::State& State)
	{
		FStyledWall Wall(Thousand, EButtonContent::Text);
		const TStrongObjectPtr<UHxButtonGroup> Group(NewObject<UHxButtonGroup>());
		TArray<UHxButton*> Buttons;
		for (const FStyledButton& Button : Wall.GetButtons())
		{
			Buttons.Add(&Button.GetButton());
		}
		Group->SetButtonList(Buttons);
		Wall.Paint();
		int32 Number = 0;
		for (auto _ : State)
		{
			State.PauseTiming();
			Wall.HoverOver(++Number % 2 == 0 ? 0 : Thousand - 1);
			Wall.Paint();
			State.ResumeTiming();
			Wall.Click();
			Wall.Paint();
		}
		State.counters["selected"] = Group->GetSelectionButtonIndexs().Num();
	}

	/** A button changes its selection, and 1,000 texts that are bound to it change their colour; not painted. */
	void SelectionToAThousandFollowers(benchmark::State& State)
	{
		FStyledWall Wall(Thousand, EButtonContent::Text);
		UHxButton& Button = Wall.GetButtons()[0].GetButton();
		Button.SetButtonSelectionMode(EButtonSelectionMode::EBSM_Toggle);
		for (const FStyledButton& Each : Wall.GetButtons())
		{
			Each.GetText().BindOnButtonSelectionContras(&Button);
		}
		for (auto _ : State)
		{
			Button.SetSelectionState(!Button.IsButtonSelected(), true);
		}
	}

	BENCHMARK(ClickInAGroupOfAThousand)->Unit(benchmark::kMicrosecond);
	BENCHMARK(SelectionToAThousandFollowers)->Unit(benchmark::kMicrosecond);
}
