#pragma once

#include "EngineTest.h"
#include "SceneVariables.h"

#include "HalvexUISubsystem.h"
#include "Host/ProjectScene.h"
#include "Host/UnitSceneBinding.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumesManager.h"

namespace Host
{
	/** The sample project in the window of the test program. */
	class FProjectSceneTest : public FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			// What the picture looks like in detail does not matter here.
			Variables.Set(TEXT("r.ScreenPercentage"), TEXT("25"));
			Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("0"));
			Variables.Set(TEXT("sg.ShadowQuality"), TEXT("0"));
			FProjectData Project;
			ASSERT_TRUE(FProjectScene::Load(TEXT(HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside"), Project));
			Show(Project);
		}

		virtual void TearDown() override
		{
			Scene.Reset();
			FEngineTest::TearDown();
		}

		void Show(const FProjectData& Project)
		{
			Scene.Reset();
			Scene = MakeUnique<FProjectScene>(Project, nullptr, 800.0 / 600.0);
			Loop.RunUntilIdle();
		}

		AUnitVolumesManager& Manager() { return Scene->GetManager(); }
		const FSceneContent& Content() { return Scene->GetBinding().GetContent(); }
		int64 CountDraws() { return Scene->GetViewport().GetPicture().GetRenderer()->GetCounters().Draws; }
		FColor GetColour(const AUnitVolumeActor* Unit) { return Content().GetColours()[Scene->GetBinding().FindVolume(Unit)]; }

		/** Where the middle of a unit is seen. */
		FVector2D Locate(const AUnitVolumeActor* Unit)
		{
			FVector2D Position = FVector2D::ZeroVector;
			Scene->GetViewport().Locate(Unit->GetVolumeBounds().GetCenter(), Position);
			return Position;
		}

		/** A unit with this status that is in front at its middle, and not one of those that were found before. */
		AUnitVolumeActor* FindUnitInSight(EUnitStatus Status)
		{
			for (AUnitVolumeActor* Unit : Manager().GetUnitVolumes())
			{
				FSceneHit Hit;
				const bool bInFront = Scene->GetViewport().Pick(Locate(Unit), Hit) && Hit.Volume == Scene->GetBinding().FindVolume(Unit);
				if (Unit->GetUnitData().Status == Status && bInFront && !Found.Contains(Unit))
				{
					Found.Add(Unit);
					return Unit;
				}
			}
			ADD_FAILURE() << "no unit is in sight";
			return nullptr;
		}

		static FColor GetStyleColour(const TCHAR* Name) { return UHalvexUISubsystem::Get()->GetHalvexColorByID(Name).ToFColorSRGB(); }

		static FProjectUnit MakeUnit(const TCHAR* Name, double Left)
		{
			FProjectUnit Unit;
			Unit.Data.UnitId = Name;
			Unit.Data.Name = Name;
			Unit.Volume = FUnitVolumeShape::MakeBox(FVector(Left, 0.0, 0.0), FVector(Left + 800.0, 1000.0, 300.0));
			return Unit;
		}

		FSceneVariables Variables;
		TUniquePtr<FProjectScene> Scene;
		TArray<AUnitVolumeActor*> Found;
		const FVector2D Sky = FVector2D(400.0, 8.0);
	};
}
