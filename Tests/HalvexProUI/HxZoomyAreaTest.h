#pragma once

#include "HxAreaTest.h"

#include "Widgets/HxBorder.h"
#include "Widgets/HxZoomyArea.h"

/** An area of 400 x 300 at (100, 100) with a border in it. */
class FHxZoomyAreaTest : public FHxAreaTest
{
protected:
	void MakeArea(bool bSmooth, bool bWithContent = true)
	{
		Area = Make<UHxZoomyArea>(TEXT("Area"));
		Area->bEnableSmoothTransition = bSmooth;
		Area->OnZoomValueChanged.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnZoomValueChanged);
		Area->OnStartCaptureMouse.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnStartCaptureMouse);
		Area->OnStopCaptureMouse.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnStopCaptureMouse);
		if (bWithContent)
		{
			Content = Make<UHxBorder>(TEXT("Content"));
			Area->SetContent(Content);
		}
		Place(*Area, 100.0, 100.0, FVector2D(400.0, 300.0));
	}

	void ShowArea(bool bSmooth, bool bWithContent = true)
	{
		MakeArea(bSmooth, bWithContent);
		Show();
		MoveMouse(Middle);
	}

	FVector2D GetTranslation() const { return Content->GetRenderTransform().Translation; }
	double GetScale() const { return Content->GetRenderTransform().Scale.X; }

	/** One step of the easing, as the formula has it. */
	static double Ease(double From, double To, float Speed = 5.0f) { return From + (To - From) * FMath::Clamp(0.01f * Speed, 0.0f, 1.0f); }

	const FVector2D Middle = FVector2D(300.0, 250.0);
	UHxZoomyArea* Area = nullptr;
	UHxBorder* Content = nullptr;
};
