#pragma once

#include "CoreMinimal.h"
#include "GenericWindow.generated.h"

/** How a window takes the screen. */
UENUM(BlueprintType)
namespace EWindowMode
{
	enum Type : int
	{
		/** The screen alone, in its own resolution. */
		Fullscreen,
		/** A borderless window as large as the screen. */
		WindowedFullscreen,
		Windowed,
		NumWindowModes UMETA(Hidden),
	};

	static inline Type ConvertIntToWindowMode(int32 InWindowMode)
	{
		return InWindowMode == 0 ? Fullscreen : (InWindowMode == 1 ? WindowedFullscreen : Windowed);
	}
}

/** A window of the system, or what stands in for one. Sizes are those of the client area, in pixels. */
class SLATECORE_API FGenericWindow
{
public:
	virtual ~FGenericWindow() = default;

	virtual void ReshapeWindow(int32 X, int32 Y, int32 Width, int32 Height) = 0;
	virtual void MoveWindowTo(int32 X, int32 Y) = 0;
	virtual void BringToFront(bool bForce = false) = 0;
	virtual void Destroy() = 0;
	virtual void Minimize() = 0;
	virtual void Maximize() = 0;
	virtual void Restore() = 0;
	virtual void Show() = 0;
	virtual void Hide() = 0;
	virtual void SetWindowMode(EWindowMode::Type InNewWindowMode) = 0;
	virtual EWindowMode::Type GetWindowMode() const = 0;
	virtual bool IsMaximized() const = 0;
	virtual bool IsMinimized() const = 0;
	virtual bool IsVisible() const = 0;
	virtual bool IsForegroundWindow() const = 0;
	virtual void SetText(const TCHAR* const Text) = 0;
	virtual void SetWindowFocus() = 0;
	virtual void GetClientSize(int32& OutWidth, int32& OutHeight) const = 0;
	/** Pixels a slate unit that the system asks for. */
	virtual float GetDPIScaleFactor() const { return 1.0f; }
	/** Handle of the system's window; null when there is none. */
	virtual void* GetOSWindowHandle() const { return nullptr; }
};
