#include "Host/AutomationDriver.h"

#include "Components/Widget.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Clock.h"
#include "Host/EngineLoop.h"
#include "Host/PropertyEdit.h"

namespace Host
{
	namespace
	{
		/** Length of the frames that steps end with, in seconds. */
		constexpr double FrameTime = 1.0 / 60.0;
		/** Less than any frame: what rounding may leave of a time. */
		constexpr double TimeTolerance = 1.0e-6;
	}

	// What is to be seen.

	bool FAutomationDriver::Locate(const FString& Locator, FFoundWidget& OutFound)
	{
		return FWidgetFinder::Find(Locator, OutFound, Error);
	}

	UWidget* FAutomationDriver::Find(const FString& Locator) const
	{
		const TArray<FFoundWidget> Found = FWidgetFinder::FindAll(Locator);
		return Found.IsEmpty() ? nullptr : Found[0].Object;
	}

	UWidget* FAutomationDriver::FindOne(const FString& Locator)
	{
		FFoundWidget Found;
		return Locate(Locator, Found) ? Found.Object : nullptr;
	}

	int32 FAutomationDriver::Count(const FString& Locator) const
	{
		return FWidgetFinder::FindAll(Locator).Num();
	}

	bool FAutomationDriver::Read(const FString& Locator, const FString& PropertyPath, FString& OutText)
	{
		FFoundWidget Found;
		if (!Locate(Locator, Found))
		{
			return false;
		}
		if (!Found.Object)
		{
			Error = FString::Printf(TEXT("'%s' has no properties: only Slate knows it"), *Locator);
			return false;
		}
		return FPropertyEdit::GetAsText(Found.Object, PropertyPath, OutText, Error);
	}

	FVector2D FAutomationDriver::GetMiddle(const UWidget& Widget) const
	{
		const FGeometry& Geometry = Widget.GetCachedGeometry();
		return FVector2D(Geometry.LocalToAbsolute(FVector2D(Geometry.GetLocalSize()) * 0.5));
	}

	bool FAutomationDriver::FindPoint(const FString& Locator, FVector2D& OutPoint)
	{
		FFoundWidget Found;
		return Locate(Locator, Found) && FWidgetFinder::FindPoint(Found, OutPoint, Error);
	}

	// Time.

	void FAutomationDriver::Wait(double Seconds)
	{
		WaitUntil([] { return false; }, Seconds);
	}

	bool FAutomationDriver::WaitUntil(TFunctionRef<bool()> Condition, double Seconds)
	{
		const double End = FClock::Now() + Seconds - TimeTolerance;
		while (!Condition())
		{
			if (FClock::Now() >= End || Loop.IsExitRequested())
			{
				return false;
			}
			RunFrame();
		}
		return true;
	}

	bool FAutomationDriver::WaitFor(const FString& Locator, double Seconds)
	{
		FFoundWidget Found;
		if (!WaitUntil([&] { return Locate(Locator, Found); }, Seconds))
		{
			Error = FString::Printf(TEXT("after %g seconds "), Seconds) + Error;
			return false;
		}
		return true;
	}

	void FAutomationDriver::RunFrame()
	{
		Loop.Step(FrameTime);
	}

	// Pictures.

	bool FAutomationDriver::TakePicture(const FString& Filename, FString& OutError)
	{
		FPicture Picture;
		if (!Loop.TakePicture(Picture))
		{
			OutError = TEXT("there is nothing to take a picture of.");
			return false;
		}
		return SavePicture(Filename, Picture, OutError);
	}

	bool FAutomationDriver::TakePictureOf(const FString& Locator, FPicture& OutPicture)
	{
		FFoundWidget Found;
		FSlateRect Rect;
		FPicture Whole;
		if (!Locate(Locator, Found) || !FWidgetFinder::FindViewRect(Found, Rect, Error))
		{
			return false;
		}
		RunFrame();
		if (!Loop.TakePicture(Whole))
		{
			Error = TEXT("there is nothing to take a picture of.");
			return false;
		}
		const FIntPoint First(FMath::Max(FMath::FloorToInt32(Rect.Left), 0), FMath::Max(FMath::FloorToInt32(Rect.Top), 0));
		const FIntPoint Behind(FMath::Min(FMath::CeilToInt32(Rect.Right), Whole.Size.X), FMath::Min(FMath::CeilToInt32(Rect.Bottom), Whole.Size.Y));
		OutPicture.Size = Behind - First;
		OutPicture.Pixels.Reset(OutPicture.Size.X * OutPicture.Size.Y);
		for (int32 Y = First.Y; Y < Behind.Y; ++Y)
		{
			OutPicture.Pixels.Append(&Whole.At(First.X, Y), OutPicture.Size.X);
		}
		return true;
	}

	bool FAutomationDriver::TakePictureOf(const FString& Locator, const FString& Filename)
	{
		FPicture Picture;
		return TakePictureOf(Locator, Picture) && SavePicture(Filename, Picture, Error);
	}
}
