#include "Host/ProjectSurroundings.h"

#include "Host/SceneContent.h"

namespace Host
{
	namespace
	{
		/** From the land side toward the water is toward higher Y: the camera stands over the water and looks back. */
		constexpr double CameraYaw = -64.0;
		constexpr double CameraPitch = -23.0;

		/** Lengths in centimetres. */
		constexpr double WaterDepth = 220.0;
		constexpr double StepHeight = 90.0;
		constexpr double CurbHeight = 12.0;

		FLinearColor FromHex(uint32 Colour)
		{
			return FLinearColor(FColor(0xff000000u | Colour));
		}

		void AddPlate(FSceneContent& Content, const FBox& Units, double Margin, double Bottom, double Top, uint32 Colour)
		{
			FSceneBox Box;
			const FVector Size = Units.GetSize();
			Box.Centre = FVector(0.5 * (Units.Min.X + Units.Max.X), 0.5 * (Units.Min.Y + Units.Max.Y), 0.5 * (Bottom + Top));
			Box.Extent = FVector(0.5 * Size.X + Margin, 0.5 * Size.Y + Margin, 0.5 * (Top - Bottom));
			Box.Colour = FromHex(Colour);
			Content.AddBox(Box);
		}

		/** The sun stands to the left of the camera and behind it, so that fronts are lit and shadows seen. */
		FVector GetSunDirection()
		{
			const FSceneView View = FSceneView::FromAngles(FVector::ZeroVector, CameraYaw, 0.0);
			return View.Forward * -0.62 + View.Right * -0.55 + View.Up * 0.58;
		}
	}

	void ProjectSurroundings::Build(FSceneContent& Content, const FBox& Units)
	{
		FSceneEnvironment Environment;
		const double Floor = Units.Min.Z;
		Environment.GroundHeight = Floor - WaterDepth;
		Environment.GroundColour = FromHex(0x6f9fb2);
		Environment.SunDirection = GetSunDirection();
		Content.SetEnvironment(Environment);

		const FVector Size = Units.GetSize();
		const double Margin = 0.09 * FMath::Max(Size.X, Size.Y) + 200.0;
		AddPlate(Content, Units, 1.22 * Margin, Floor - WaterDepth, Floor - StepHeight, 0xb3ab9c);
		AddPlate(Content, Units, Margin, Floor - StepHeight, Floor - CurbHeight, 0xddd8cd);
		AddPlate(Content, Units, 0.35 * Margin, Floor - CurbHeight, Floor, 0xc3c8ae);
	}

	FSceneCamera::FPose ProjectSurroundings::GetPose()
	{
		FSceneCamera::FPose Pose;
		Pose.Yaw = CameraYaw;
		Pose.Pitch = CameraPitch;
		return Pose;
	}
}
