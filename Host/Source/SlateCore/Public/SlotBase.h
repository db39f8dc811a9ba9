#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"
#include "Widgets/InvalidateWidgetReason.h"

class FChildren;
class SWidget;

/** The place of a child in its parent: holds the child, and in derived classes how it is laid out. */
class SLATECORE_API FSlotBase
{
public:
	FSlotBase();
	explicit FSlotBase(const FChildren& InOwner);
	explicit FSlotBase(const TSharedRef<SWidget>& InWidget);
	virtual ~FSlotBase();
	FSlotBase(const FSlotBase&) = delete;
	FSlotBase& operator=(const FSlotBase&) = delete;

	/** What a slot is made from: the slot itself, not yet in a parent, and the child it is to hold. */
	struct SLATECORE_API FSlotArguments
	{
		explicit FSlotArguments(TUniquePtr<FSlotBase> InSlot);
		FSlotArguments(FSlotArguments&& Other);
		~FSlotArguments();

		void AttachWidget(const TSharedRef<SWidget>& InChild) { ChildWidget = InChild; }
		/** The null widget when none was given. */
		const TSharedRef<SWidget>& GetAttachedWidget() const { return ChildWidget; }
		FSlotBase* GetSlot() const { return Slot.Get(); }
		TUniquePtr<FSlotBase> StealSlot() { return MoveTemp(Slot); }

	private:
		TUniquePtr<FSlotBase> Slot;
		TSharedRef<SWidget> ChildWidget;
	};

	/** The children that the slot is one of; null before it was added to a parent. */
	const FChildren* GetOwner() const { return Owner; }
	/** The parent; null before the slot was added to one. */
	SWidget* GetOwnerWidget() const;

	/** Puts a widget into the slot, in place of the one that was there. It leaves the slot that it may have been in. */
	void AttachWidget(const TSharedRef<SWidget>& InWidget);

	/** Takes the widget out; null when there was none. */
	const TSharedPtr<SWidget> DetachWidget();

	/** The child; the null widget when there is none. */
	const TSharedRef<SWidget>& GetWidget() const { return Widget; }

	/** Marks the parent. */
	void Invalidate(EInvalidateWidgetReason InvalidateReason);

protected:
	/** Adds the slot to a parent. Called once. */
	void SetOwner(const FChildren& Children);

private:
	void AssignParent();
	void ReleaseParent();

	const FChildren* Owner = nullptr;
	TSharedRef<SWidget> Widget;
};

/** A slot whose arguments chain. */
template <typename SlotType>
class TSlotBase : public FSlotBase
{
public:
	using FSlotBase::FSlotBase;

	struct FSlotArguments : public FSlotBase::FSlotArguments
	{
		explicit FSlotArguments(TUniquePtr<SlotType> InSlot) : FSlotBase::FSlotArguments(TUniquePtr<FSlotBase>(InSlot.Release())) {}
		FSlotArguments(FSlotArguments&&) = default;

		/** The child. */
		typename SlotType::FSlotArguments& operator[](const TSharedRef<SWidget>& InChildWidget)
		{
			this->AttachWidget(InChildWidget);
			return Me();
		}

		/** Hands out the slot, which lives as long as it is in its parent. */
		typename SlotType::FSlotArguments& Expose(SlotType*& OutVarToInit)
		{
			OutVarToInit = GetSlot();
			return Me();
		}

		SlotType* GetSlot() const { return static_cast<SlotType*>(FSlotBase::FSlotArguments::GetSlot()); }
		TUniquePtr<SlotType> StealSlot() { return TUniquePtr<SlotType>(static_cast<SlotType*>(FSlotBase::FSlotArguments::StealSlot().Release())); }

	protected:
		typename SlotType::FSlotArguments& Me() { return static_cast<typename SlotType::FSlotArguments&>(*this); }
	};

	void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
	{
		this->SetOwner(SlotOwner);
		this->AttachWidget(InArgs.GetAttachedWidget());
	}
};
