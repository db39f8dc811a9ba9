#include "HxButtonGroupModel.h"
#include "HxButtonGroupTestTools.h"

#include <random>

namespace
{
	/** Drives a group at random, and a model of it alongside. */
	class FHxButtonGroupModelTest : public FHxButtonGroupTestBase, public testing::WithParamInterface<int>
	{
	protected:
		static constexpr int NumGroups = 8;
		static constexpr int NumSteps = 60;
		static constexpr int MaxListed = 9;

		using FModelStep = TFunction<void(FGroupModel&)>;
		using FWidgetStep = TFunction<void()>;

		int Roll(int Num) { return static_cast<int>(Random() % static_cast<uint32>(Num)); }
		bool Chance(int Percent) { return Roll(100) < Percent; }

		int AnyButton() { return Roll(static_cast<int>(Model.Buttons.size())); }
		UHxButton* GetButton(int Number) const { return Number < 0 ? nullptr : Buttons[Number]; }

		TArray<UHxButton*> ToButtons(const std::vector<int>& Numbers) const
		{
			TArray<UHxButton*> List;
			for (const int Number : Numbers)
			{
				List.Add(GetButton(Number));
			}
			return List;
		}

		static TArray<int32> ToArray(const std::vector<int>& Numbers)
		{
			return TArray<int32>(Numbers.data(), static_cast<int32>(Numbers.size()));
		}

		/** Any buttons, some twice, and some null entries. */
		std::vector<int> AnyList()
		{
			std::vector<int> List;
			const bool bNulls = Chance(20);
			for (int Num = Roll(static_cast<int>(Model.Buttons.size()) + 2); Num > 0; --Num)
			{
				List.push_back(bNulls && Chance(25) ? -1 : AnyButton());
			}
			return List;
		}

		/** Some indexes, also such as no button has. */
		std::vector<int> AnyIndexes()
		{
			std::vector<int> Indexes;
			for (int Num = Roll(4); Num > 0; --Num)
			{
				Indexes.push_back(Roll(static_cast<int>(Model.List.size()) + 2) - (Chance(10) ? 1 : 0));
			}
			return Indexes;
		}

		/** A group that is shown, and its model. */
		void MakeAnyGroup()
		{
			StartScreen();
			Buttons.Empty();
			Model = FGroupModel();
			Model.bSingle = Chance(50);
			Model.bAllowNone = Chance(50);
			Model.Buttons.resize(static_cast<size_t>(1 + Roll(6)));

			Group = Make<UHxButtonGroup>(TEXT("Group"));
			Listen(*Group);
			Group->ButtonGroupControlMode = Model.bSingle ? EButtonGroupControlMode::EBGM_SingleSelection : EButtonGroupControlMode::EBGM_MultiSelection;
			Group->bAllowNoneSelection = Model.bAllowNone;
			for (size_t Number = 0; Number < Model.Buttons.size(); ++Number)
			{
				FGroupModel::FButton& State = Model.Buttons[Number];
				State.bSelected = Chance(20);
				State.Mode = Chance(70) ? FGroupModel::Toggle : static_cast<FGroupModel::EMode>(Roll(3));
				UHxButton* Button = MakeMember(static_cast<int32>(Number));
				Button->bSelectedButton = State.bSelected;
				Button->SelectionMode = static_cast<EButtonSelectionMode>(State.Mode);
				if (Chance(85))
				{
					Model.List.push_back(static_cast<int>(Number));
				}
			}
			if (Chance(20))
			{
				Model.List = AnyList();
			}
			Model.Initial = AnyIndexes();
			for (const int Number : Model.List)
			{
				Group->ButtonList.Add(GetButton(Number));
			}
			Group->SelectedButtonsIndex = ToArray(Model.Initial);
			Place(*Group, 10.0, 10.0);
			Show();
			Model.Refresh();
			History = "start";
		}

		/** Does the step with both, unless nobody promises what it does. */
		void Do(const std::string& Name, const FModelStep& ModelStep, const FWidgetStep& WidgetStep)
		{
			FGroupModel Tried = Model;
			ModelStep(Tried);
			if (!Tried.bUndefined)
			{
				History += " " + Name;
				Model = Tried;
				WidgetStep();
			}
		}

		void DoAnyStep()
		{
			const int Number = AnyButton();
			const std::string Text = std::to_string(Number);
			UHxButton* Button = GetButton(Number);
			const bool bState = Chance(50);
			switch (Roll(24))
			{
			case 0:
			{
				const int Place = Roll(static_cast<int>(Model.List.size()) + 2) - 1;
				Do("SelectByIndex" + std::to_string(Place), [=](FGroupModel& In) { In.SelectByIndex(Place); }, [=, this]() { Group->SetSelectionByIndex(Place); });
				break;
			}
			case 1:
				if (std::find(Model.List.begin(), Model.List.end(), Number) != Model.List.end())
				{
					Do("SelectByButton" + Text, [=](FGroupModel& In) { In.SetState(Number, true, true); }, [=, this]() { Group->SetSelectionByButton(Button); });
				}
				break;
			case 2:
				Do("SelectByID" + Text, [=](FGroupModel& In) { In.SelectByID(Number); }, [=, this]() { Group->SetSelectionByButtonID(Button->ButtonID); });
				break;
			case 3:
				Do("SelectByNoID", [](FGroupModel&) {}, [this]() { Group->SetSelectionByButtonID(NAME_None); });
				break;
			case 4:
			{
				const std::vector<int> Indexes = AnyIndexes();
				Do("SetSelectedIndex" + Print(Indexes), [=](FGroupModel& In) { In.SetSelectedIndex(Indexes); }, [=, this]() { Group->SetSelectedIndex(ToArray(Indexes)); });
				break;
			}
			case 5:
				Do("Clear", [](FGroupModel& In) { In.Clear(); }, [this]() { Group->ClearAllButtonSelection(); });
				break;
			case 6:
				Do("Refresh", [](FGroupModel& In) { In.Refresh(); }, [this]() { Group->RefreshButtonReferences(); });
				break;
			case 7:
				if (Model.List.size() < MaxListed)
				{
					const int Added = Chance(10) ? -1 : Number;
					Do("Add" + std::to_string(Added), [=](FGroupModel& In) { In.List.push_back(Added); }, [=, this]() { Group->AddButton(GetButton(Added)); });
				}
				break;
			case 8:
				Do("Remove" + Text, [=](FGroupModel& In) { std::erase(In.List, Number); }, [=, this]() { Group->RemoveButton(Button); });
				break;
			case 9:
			{
				const std::vector<int> List = AnyList();
				Do("SetList" + Print(List), [=](FGroupModel& In) { In.List = List; In.Refresh(); }, [=, this]() { Group->SetButtonList(ToButtons(List)); });
				break;
			}
			case 10:
				if (Chance(30))
				{
					Do("Clean", [](FGroupModel& In) { In.Clean(); }, [this]() { Group->CleanButtonList(); });
				}
				break;
			case 11:
				Do("Silent" + Text + (bState ? "+" : "-"), [=](FGroupModel& In) { In.SetState(Number, bState, false); }, [=]() { Button->SetSelectionState(bState, false); });
				break;
			case 12:
				Do("Told" + Text + (bState ? "+" : "-"), [=](FGroupModel& In) { In.SetState(Number, bState, true); }, [=]() { Button->SetSelectionState(bState, true); });
				break;
			case 13:
				Do(bState ? "AllowNone" : "NeedOne", [=](FGroupModel& In) { In.bAllowNone = bState; }, [=, this]() { Group->bAllowNoneSelection = bState; });
				break;
			case 14:
				if (Chance(30))
				{
					Do(bState ? "Single" : "Multi", [=](FGroupModel& In) { In.bSingle = bState; },
						[=, this]() { Group->ButtonGroupControlMode = bState ? EButtonGroupControlMode::EBGM_SingleSelection : EButtonGroupControlMode::EBGM_MultiSelection; });
				}
				break;
			case 15:
			{
				const int Mode = Roll(3);
				Do("Mode" + Text + "NTB"[Mode], [=](FGroupModel& In) { In.Buttons[Number].Mode = static_cast<FGroupModel::EMode>(Mode); },
					[=]() { Button->SetButtonSelectionMode(static_cast<EButtonSelectionMode>(Mode)); });
				break;
			}
			default:
				Do("Click" + Text, [=](FGroupModel& In) { In.Click(Number); }, [=, this]() { Click(*Button); });
				break;
			}
		}

		static std::string Print(const std::vector<int>& Numbers)
		{
			std::string Text;
			for (const int Number : Numbers)
			{
				Text += (Text.empty() ? "" : ",") + std::to_string(Number);
			}
			return "(" + Text + ")";
		}

		/** All that can be asked of the group and its buttons. */
		std::string DescribeWidget()
		{
			std::string Text = "states " + GetStates() + " modes " + GetModes() + " numbers";
			for (const UHxButton* Button : Buttons)
			{
				Text += " " + std::to_string(Button->ButtonIndex) + "/" + std::to_string(CountBindings(*Button));
			}
			Text += " list";
			for (const UHxButton* Button : Group->GetButtonList())
			{
				Text += Button ? " " + Host::ToStd(Button->GetName()) : " null";
			}
			Text += " record " + GetRecord() + " indexes";
			for (const int32 Index : Group->GetSelectionButtonIndexs())
			{
				Text += " " + std::to_string(Index);
			}
			Text += " ids";
			for (const FName& ID : Group->GetSelectionButtonIDs())
			{
				Text += " " + Host::ToStd(ID);
			}
			return Text + (Group->HasSelection() ? " some" : " empty") + " events " + TakeEvents();
		}

		std::string DescribeModel()
		{
			std::string States;
			std::string Modes;
			std::string Numbers;
			for (const FGroupModel::FButton& Button : Model.Buttons)
			{
				States += Button.bSelected ? "1" : "0";
				Modes += "NTB"[Button.Mode];
				Numbers += " " + std::to_string(Button.Index) + "/" + (Button.bBound ? "1" : "0");
			}
			std::string Text = "states " + States + " modes " + Modes + " numbers" + Numbers + " list";
			for (const int Number : Model.List)
			{
				Text += Number < 0 ? " null" : " B" + std::to_string(Number);
			}
			std::string Record;
			std::string IDs;
			for (const std::pair<int, int>& Entry : Model.Record.ListEntries())
			{
				Record += (Record.empty() ? "" : " ") + std::to_string(Entry.first) + ":B" + std::to_string(Entry.second);
				IDs += " ID" + std::to_string(Entry.second);
			}
			Text += " record " + Record + " indexes";
			for (const int Place : Model.ListSelection())
			{
				Text += " " + std::to_string(Place);
			}
			std::string Events;
			for (const std::string& Event : Model.Events)
			{
				Events += (Events.empty() ? "" : " ") + Event;
			}
			Model.Events.clear();
			return Text + " ids" + IDs + (Model.Record.IsEmpty() ? " empty" : " some") + " events " + Events;
		}

		FGroupModel Model;
		std::mt19937 Random{ static_cast<uint32>(GetParam()) };
		std::string History;
	};

	TEST_P(FHxButtonGroupModelTest, AgreesWithItsDescription)
	{
		for (int Round = 0; Round < NumGroups; ++Round)
		{
			MakeAnyGroup();
			ASSERT_EQ(DescribeWidget(), DescribeModel()) << "at the start of round " << Round;
			for (int Step = 0; Step < NumSteps; ++Step)
			{
				DoAnyStep();
				ASSERT_EQ(DescribeWidget(), DescribeModel()) << "round " << Round << ": " << History;
			}
		}
	}

	INSTANTIATE_TEST_SUITE_P(Seeds, FHxButtonGroupModelTest, testing::Range(1, 9));
}
