#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/**
 * What a button group does, step by step as it is described to those who build screens: a second opinion to compare the widget
 * with. Buttons are numbers, -1 stands for a null entry of the list.
 */
struct FGroupModel
{
	enum EMode
	{
		None,
		Toggle,
		Blocked,
	};

	struct FButton
	{
		bool bSelected = false;
		EMode Mode = None;
		int Index = -1;
		/** The group listens to it. */
		bool bBound = false;
	};

	/** The record of the selection: slots in order, of which a freed one is the next to be used, the last freed first. */
	class FRecord
	{
	public:
		bool IsEmpty() const { return Num() == 0; }
		int Num() const { return static_cast<int>(std::count_if(Slots.begin(), Slots.end(), [](const FSlot& Slot) { return Slot.has_value(); })); }
		bool Contains(int Index) const { return FindSlot(Index) != Slots.size(); }
		int GetFirst() const { return ListEntries().front().second; }

		void Empty()
		{
			Slots.clear();
			Free.clear();
		}

		void Set(int Index, int Button)
		{
			size_t Place = FindSlot(Index);
			if (Place == Slots.size())
			{
				if (Free.empty())
				{
					Slots.emplace_back();
				}
				else
				{
					Place = Free.back();
					Free.pop_back();
				}
			}
			Slots[Place] = { Index, Button };
		}

		void Remove(int Index)
		{
			const size_t Place = FindSlot(Index);
			if (Place != Slots.size())
			{
				Slots[Place].reset();
				Free.push_back(Place);
			}
		}

		int RemoveFirst()
		{
			const std::pair<int, int> First = ListEntries().front();
			Remove(First.first);
			return First.second;
		}

		/** Index and button of each entry in order. */
		std::vector<std::pair<int, int>> ListEntries() const
		{
			std::vector<std::pair<int, int>> Entries;
			for (const FSlot& Slot : Slots)
			{
				if (Slot)
				{
					Entries.push_back(*Slot);
				}
			}
			return Entries;
		}

	private:
		using FSlot = std::optional<std::pair<int, int>>;

		size_t FindSlot(int Index) const
		{
			return static_cast<size_t>(std::find_if(Slots.begin(), Slots.end(), [Index](const FSlot& Slot) { return Slot && Slot->first == Index; }) - Slots.begin());
		}

		std::vector<FSlot> Slots;
		std::vector<size_t> Free;
	};

	std::vector<FButton> Buttons;
	std::vector<int> List;
	std::vector<int> Initial;
	bool bSingle = true;
	bool bAllowNone = true;
	FRecord Record;

	/** What was told, in order. */
	std::vector<std::string> Events;

	/** The call was one whose result nobody promises. */
	bool bUndefined = false;

	void Click(int Button)
	{
		const FButton& State = Buttons[Button];
		if (State.Mode == Toggle || (State.Mode == Blocked && !State.bSelected))
		{
			SetState(Button, !State.bSelected, true);
		}
	}

	void SetState(int Button, bool bSelected, bool bTell)
	{
		FButton& State = Buttons[Button];
		if (State.bSelected == bSelected)
		{
			return;
		}
		State.bSelected = bSelected;
		if (bTell)
		{
			const bool bReported = bSelected && State.Mode != None;
			Events.push_back("B" + std::to_string(Button) + (bReported ? "=1" : "=0"));
			if (State.bBound)
			{
				Receive(Button, bReported);
			}
		}
	}

	void Refresh()
	{
		Record.Empty();
		for (size_t Place = 0; Place < List.size(); ++Place)
		{
			if (List[Place] >= 0)
			{
				FButton& Button = Buttons[List[Place]];
				Button.bBound = true;
				Button.Index = static_cast<int>(Place);
				if (bSingle)
				{
					Button.Mode = bAllowNone ? Toggle : Blocked;
				}
			}
		}
		SelectInitial();
	}

	void SetSelectedIndex(std::vector<int> Selection)
	{
		Initial = std::move(Selection);
		Record.Empty();
		SelectInitial();
		TellChange();
	}

	void SelectByIndex(int Place)
	{
		if (Place >= 0 && Place < static_cast<int>(List.size()) && List[Place] >= 0)
		{
			SetState(List[Place], true, true);
		}
	}

	/** @param Identifier of the button with that number; -1 for none */
	void SelectByID(int Identifier)
	{
		bUndefined |= std::find(List.begin(), List.end(), -1) != List.end();
		if (!bUndefined && Identifier >= 0 && std::find(List.begin(), List.end(), Identifier) != List.end())
		{
			SetState(Identifier, true, true);
		}
	}

	void Clear()
	{
		if (bAllowNone && !Record.IsEmpty())
		{
			for (const std::pair<int, int>& Entry : Record.ListEntries())
			{
				SetState(Entry.second, false, true);
			}
			Record.Empty();
		}
		Events.push_back("cleared");
	}

	void Clean()
	{
		Clear();
		for (const int Button : List)
		{
			if (Button >= 0)
			{
				Buttons[Button].bBound = false;
			}
		}
		List.clear();
		Record.Empty();
		Initial.clear();
	}

	/** The buttons' places in the list, in the order of the record. */
	std::vector<int> ListSelection() const
	{
		std::vector<int> Places;
		for (const std::pair<int, int>& Entry : Record.ListEntries())
		{
			const auto Found = std::find(List.begin(), List.end(), Entry.second);
			if (Found != List.end())
			{
				Places.push_back(static_cast<int>(Found - List.begin()));
			}
		}
		return Places;
	}

private:
	void SelectInitial()
	{
		for (const int Button : List)
		{
			if (Button < 0)
			{
				continue;
			}
			const int Index = Buttons[Button].Index;
			const bool bSelected = std::find(Initial.begin(), Initial.end(), Index) != Initial.end();
			SetState(Button, bSelected, false);
			if (bSelected && !Record.Contains(Index))
			{
				Record.Set(Index, Button);
			}
		}
	}

	void Receive(int Button, bool bSelected)
	{
		if (bSingle)
		{
			ReceiveSingle(Button, bSelected);
		}
		else
		{
			ReceiveMulti(Button, bSelected);
		}
	}

	void ReceiveSingle(int Button, bool bSelected)
	{
		const int Index = Buttons[Button].Index;
		if (bSelected)
		{
			if (!Record.IsEmpty() && !Record.Contains(Index))
			{
				SetState(Record.RemoveFirst(), false, false);
			}
			Record.Set(Index, Button);
			TellChange();
			return;
		}
		// Only a recorded button can be deselected.
		bUndefined |= Record.IsEmpty();
		if (bUndefined)
		{
			return;
		}
		SetState(Record.RemoveFirst(), false, false);
		if (Record.IsEmpty())
		{
			TellChange();
			Events.push_back("cleared");
		}
	}

	void ReceiveMulti(int Button, bool bSelected)
	{
		const int Index = Buttons[Button].Index;
		if (bSelected)
		{
			if (!bAllowNone && Record.Num() == 1)
			{
				Buttons[Record.GetFirst()].Mode = Toggle;
			}
			Record.Set(Index, Button);
			TellChange();
			return;
		}
		Record.Remove(Index);
		if (!bAllowNone && Record.Num() == 1)
		{
			Buttons[Record.GetFirst()].Mode = Blocked;
		}
		if (Record.IsEmpty())
		{
			Events.push_back("cleared");
		}
		TellChange();
	}

	void TellChange()
	{
		std::string Text;
		for (const int Place : ListSelection())
		{
			Text += (Text.empty() ? "" : ",") + std::to_string(Place);
		}
		Events.push_back((Record.IsEmpty() ? "empty[" : "some[") + Text + "]");
	}
};
