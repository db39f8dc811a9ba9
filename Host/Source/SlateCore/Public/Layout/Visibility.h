#pragma once

#include "CoreMinimal.h"

/** Whether a widget is seen, takes room, and takes input. */
struct EVisibility
{
public:
	/** Seen, and takes input. */
	static const EVisibility Visible;
	/** Not seen, and takes no room. */
	static const EVisibility Collapsed;
	/** Not seen, but takes its room. */
	static const EVisibility Hidden;
	/** Seen, but neither it nor what is inside takes input. */
	static const EVisibility HitTestInvisible;
	/** Seen; what is inside takes input, it itself does not. */
	static const EVisibility SelfHitTestInvisible;
	/** As a filter: every widget. */
	static const EVisibility All;

	constexpr EVisibility() : Value(Visible_) {}

	constexpr bool operator==(const EVisibility& Other) const { return Value == Other.Value; }

	constexpr bool AreChildrenHitTestVisible() const { return (Value & ChildrenHit) != 0; }
	constexpr bool IsHitTestVisible() const { return (Value & SelfHit) != 0; }

	/** True when it is seen. */
	constexpr bool IsVisible() const { return (Value & Seen) != 0; }

	/** True when a widget of visibility InVisibility is wanted by a filter. */
	static constexpr bool DoesVisibilityPassFilter(const EVisibility InVisibility, const EVisibility InVisibilityFilter)
	{
		return (InVisibility.Value & InVisibilityFilter.Value) != 0;
	}

	FString ToString() const;

private:
	enum EBits : uint8
	{
		Seen = 1 << 0,
		Unseen = 1 << 1,
		TakesNoRoom = 1 << 2,
		SelfHit = 1 << 3,
		ChildrenHit = 1 << 4,

		Visible_ = Seen | SelfHit | ChildrenHit,
		Collapsed_ = TakesNoRoom,
		Hidden_ = Unseen,
		HitTestInvisible_ = Seen,
		SelfHitTestInvisible_ = Seen | ChildrenHit,
		All_ = Seen | Unseen | TakesNoRoom | SelfHit | ChildrenHit,
	};

	constexpr explicit EVisibility(EBits InValue) : Value(InValue) {}

	uint8 Value;
};

inline constexpr EVisibility EVisibility::Visible = EVisibility(EVisibility::Visible_);
inline constexpr EVisibility EVisibility::Collapsed = EVisibility(EVisibility::Collapsed_);
inline constexpr EVisibility EVisibility::Hidden = EVisibility(EVisibility::Hidden_);
inline constexpr EVisibility EVisibility::HitTestInvisible = EVisibility(EVisibility::HitTestInvisible_);
inline constexpr EVisibility EVisibility::SelfHitTestInvisible = EVisibility(EVisibility::SelfHitTestInvisible_);
inline constexpr EVisibility EVisibility::All = EVisibility(EVisibility::All_);
