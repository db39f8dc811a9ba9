#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericWindow.h"
#include "Sdl/SdlLibrary.h"

namespace Host
{
	/** A window of the system. */
	class FSdlWindow final : public FGenericWindow
	{
	public:
		explicit FSdlWindow(SDL_Window* InWindow);
		virtual ~FSdlWindow() override;

		uint32 GetId() const { return Id; }
		SDL_Window* GetSdlWindow() const { return Window; }

		/** Pixels of the window for a unit of SDL's, in which it gives positions. */
		FVector2f GetPixelsPerUnit() const;

		virtual void ReshapeWindow(int32 X, int32 Y, int32 Width, int32 Height) override;
		virtual void MoveWindowTo(int32 X, int32 Y) override;
		virtual void BringToFront(bool bForce) override;
		virtual void Destroy() override;
		virtual void Minimize() override;
		virtual void Maximize() override;
		virtual void Restore() override;
		virtual void Show() override;
		virtual void Hide() override;
		virtual void SetWindowMode(EWindowMode::Type InNewWindowMode) override;
		virtual EWindowMode::Type GetWindowMode() const override { return Mode; }
		virtual bool IsMaximized() const override;
		virtual bool IsMinimized() const override;
		virtual bool IsVisible() const override;
		virtual bool IsForegroundWindow() const override;
		virtual void SetText(const TCHAR* const Text) override;
		virtual void SetWindowFocus() override;
		virtual void GetClientSize(int32& OutWidth, int32& OutHeight) const override;
		virtual float GetDPIScaleFactor() const override;
		virtual void* GetOSWindowHandle() const override { return Window; }

	private:
		bool HasFlag(uint32 Flag) const;
		void SetPixelSize(int32 Width, int32 Height);
		/** Makes the window, still windowed, as large as the desktop of its screen. */
		void CoverDesktop();

		SDL_Window* Window;
		uint32 Id;
		EWindowMode::Type Mode = EWindowMode::Windowed;
	};
}
