#pragma once

#include "CoreMinimal.h"
#include "SlotBase.h"
#include "Templates/UniquePtr.h"

/** The children of a widget, by index in the order in which they are laid out. */
class SLATECORE_API FChildren
{
public:
	explicit FChildren(SWidget* InOwner) : Owner(InOwner) {}
	virtual ~FChildren() = default;
	FChildren(const FChildren&) = delete;
	FChildren& operator=(const FChildren&) = delete;

	virtual int32 Num() const = 0;
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const = 0;

	TSharedRef<SWidget> GetChildAt(int32 Index) { return GetSlotAt(Index).GetWidget(); }
	TSharedRef<const SWidget> GetChildAt(int32 Index) const;

	/** The parent. */
	SWidget& GetOwner() const { return *Owner; }

	template <typename Predicate>
	void ForEachWidget(Predicate&& Pred) const
	{
		for (int32 Index = 0, Count = Num(); Index < Count; ++Index)
		{
			Pred(GetSlotAt(Index).GetWidget().Get());
		}
	}

private:
	SWidget* Owner;
};

/** No children. */
class SLATECORE_API FNoChildren : public FChildren
{
public:
	explicit FNoChildren(SWidget* InOwner) : FChildren(InOwner) {}
	virtual int32 Num() const override { return 0; }
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override;
};

/** Any number of children, each in a slot of its own. */
template <typename SlotType>
class TPanelChildren : public FChildren
{
public:
	using FChildren::FChildren;

	virtual ~TPanelChildren() override { Empty(); }

	/** Arguments that add their slot to the panel when they go out of scope, at the end of the statement. */
	struct FScopedWidgetSlotArguments : public SlotType::FSlotArguments
	{
		FScopedWidgetSlotArguments(TUniquePtr<SlotType> InSlot, TPanelChildren<SlotType>& InChildren, int32 InIndex)
			: SlotType::FSlotArguments(MoveTemp(InSlot)), Children(&InChildren), Index(InIndex)
		{
		}

		FScopedWidgetSlotArguments(FScopedWidgetSlotArguments&& Other) : SlotType::FSlotArguments(MoveTemp(Other)), Children(Other.Children), Index(Other.Index)
		{
			Other.Children = nullptr;
		}

		~FScopedWidgetSlotArguments()
		{
			if (Children && this->GetSlot())
			{
				Children->InsertSlot(MoveTemp(*this), Index);
			}
		}

	private:
		TPanelChildren<SlotType>* Children;
		int32 Index;
	};

	virtual int32 Num() const override { return Slots.Num(); }
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override { return *Slots[ChildIndex]; }

	bool IsEmpty() const { return Slots.IsEmpty(); }
	bool IsValidIndex(int32 Index) const { return Slots.IsValidIndex(Index); }
	SlotType& operator[](int32 Index) { return *Slots[Index]; }
	const SlotType& operator[](int32 Index) const { return *Slots[Index]; }
	void Reserve(int32 NumToReserve) { Slots.Reserve(NumToReserve); }

	int32 AddSlot(typename SlotType::FSlotArguments&& SlotArgument) { return InsertSlot(MoveTemp(SlotArgument), INDEX_NONE); }

	/** Adds a slot at an index, at the end for INDEX_NONE; returns where it is. */
	int32 InsertSlot(typename SlotType::FSlotArguments&& SlotArgument, int32 Index)
	{
		const int32 Place = Index == INDEX_NONE ? Slots.Num() : Index;
		SlotType* Slot = SlotArgument.GetSlot();
		Slots.Insert(SlotArgument.StealSlot(), Place);
		Slot->Construct(*this, MoveTemp(SlotArgument));
		return Place;
	}

	void AddSlots(TArray<typename SlotType::FSlotArguments> SlotArguments)
	{
		Slots.Reserve(Slots.Num() + SlotArguments.Num());
		for (typename SlotType::FSlotArguments& Arguments : SlotArguments)
		{
			AddSlot(MoveTemp(Arguments));
		}
	}

	void RemoveAt(int32 Index) { Slots.RemoveAt(Index); }

	/** Removes the slot of a widget; returns its index, or INDEX_NONE when there is none. */
	int32 Remove(const TSharedRef<SWidget>& SlotWidget)
	{
		const int32 Index = IndexOf(SlotWidget);
		if (Index != INDEX_NONE)
		{
			Slots.RemoveAt(Index);
		}
		return Index;
	}

	int32 IndexOf(const TSharedRef<SWidget>& SlotWidget) const
	{
		return Slots.IndexOfByPredicate([&SlotWidget](const TUniquePtr<SlotType>& Slot) { return Slot->GetWidget() == SlotWidget; });
	}

	void Empty()
	{
		// Out of the array before they go, so that the panel is whole while widgets leave it; first ones first, which are found at once.
		TArray<TUniquePtr<SlotType>> Removed = MoveTemp(Slots);
		Slots.Empty();
		for (TUniquePtr<SlotType>& Slot : Removed)
		{
			Slot.Reset();
		}
	}

	/** Puts the slot at one index at another, the ones between move up. */
	void Move(int32 IndexToMove, int32 IndexToDestination)
	{
		TUniquePtr<SlotType> Slot = MoveTemp(Slots[IndexToMove]);
		Slots.RemoveAt(IndexToMove);
		Slots.Insert(MoveTemp(Slot), IndexToDestination);
		InvalidateOrder();
	}

	template <typename Predicate>
	void StableSort(const Predicate& Pred)
	{
		Slots.StableSort([&Pred](const TUniquePtr<SlotType>& A, const TUniquePtr<SlotType>& B) { return Pred(*A, *B); });
		InvalidateOrder();
	}

private:
	void InvalidateOrder()
	{
		if (!Slots.IsEmpty())
		{
			Slots[0]->Invalidate(EInvalidateWidgetReason::ChildOrder);
		}
	}

	TArray<TUniquePtr<SlotType>> Slots;
};

/** One child at most, in a slot that is at the same time the list of children. */
template <typename SlotType>
class TSingleWidgetChildrenWithSlot : public FChildren, public SlotType
{
public:
	explicit TSingleWidgetChildrenWithSlot(SWidget* InOwner) : FChildren(InOwner) { this->SetOwner(*this); }

	virtual int32 Num() const override;
	virtual const FSlotBase& GetSlotAt(int32) const override { return *this; }

	/** The child. */
	TSingleWidgetChildrenWithSlot& operator[](const TSharedRef<SWidget>& InChildWidget)
	{
		this->AttachWidget(InChildWidget);
		return *this;
	}
};

namespace Host
{
	SLATECORE_API bool IsNullWidget(const TSharedRef<SWidget>& Widget);
}

template <typename SlotType>
int32 TSingleWidgetChildrenWithSlot<SlotType>::Num() const
{
	return Host::IsNullWidget(this->GetWidget()) ? 0 : 1;
}
