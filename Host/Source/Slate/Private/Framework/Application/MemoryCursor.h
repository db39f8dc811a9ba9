#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"

namespace Host
{
	/** A cursor where the system has none: it is where the last event or the program put it. */
	class FMemoryCursor final : public ICursor
	{
	public:
		virtual FVector2D GetPosition() const override { return Position; }
		virtual void SetPosition(const int32 X, const int32 Y) override { Position = FVector2D(X, Y); }
		/** With its fraction of a pixel. */
		void Remember(FVector2D InPosition) { Position = InPosition; }
		virtual void SetType(const EMouseCursor::Type InNewCursor) override { Type = InNewCursor; }
		virtual EMouseCursor::Type GetType() const override { return Type; }
		virtual void Show(bool) override {}

	private:
		FVector2D Position = FVector2D(0.0, 0.0);
		EMouseCursor::Type Type = EMouseCursor::Default;
	};
}
