#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"
#include "Sdl/SdlLibrary.h"

namespace Host
{
	class FSdlWindow;

	/** The mouse cursor of the system. */
	class FSdlCursor final : public ICursor
	{
	public:
		virtual ~FSdlCursor() override;

		virtual FVector2D GetPosition() const override { return Position; }
		virtual void SetPosition(const int32 X, const int32 Y) override;
		virtual void SetType(const EMouseCursor::Type InNewCursor) override;
		virtual EMouseCursor::Type GetType() const override { return Type; }
		virtual void Show(bool bShow) override;

		/** Notes where the mouse is, and in which window. */
		void Update(const TSharedPtr<FSdlWindow>& InWindow, FVector2D InPosition);

		/** Gives the shapes back, before the video system ends. */
		void Release();

	private:
		void Apply();

		TWeakPtr<FSdlWindow> Window;
		FVector2D Position = FVector2D(0.0, 0.0);
		EMouseCursor::Type Type = EMouseCursor::Default;
		bool bShown = true;
		/** Made when first used. */
		SDL_Cursor* Shapes[SDL_NUM_SYSTEM_CURSORS] = {};
	};
}
