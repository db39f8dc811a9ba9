#include "Host/InteriorContent.h"

namespace Host
{
	namespace
	{
		/** The table on which the doll's house stands, in centimetres around it and below its floor. */
		constexpr double TableMargin = 60.0;
		constexpr double TableTop = -14.0;
		constexpr double TableThickness = 10.0;

		/** Between lines so strong that each cupboard is seen, and so faint that rooms full of them are not grey. */
		constexpr float EdgeOpacity = 0.34f;

		FLinearColor FromHex(uint32 Colour)
		{
			return FLinearColor(FColor(0xff000000u | Colour));
		}

		/** Light of an even day, from the side of the camera: no wall is dark, and shadows are short. */
		FSceneEnvironment MakeDaylight(const FInteriorCamera& Camera, double Ground)
		{
			FSceneEnvironment Environment;
			Environment.GroundHeight = Ground;
			Environment.GroundColour = FromHex(0xcfd3d2);
			const FSceneView View = FSceneView::FromAngles(FVector::ZeroVector, Camera.Yaw, 0.0);
			Environment.SunDirection = View.Forward * -0.56 + View.Right * -0.14 + View.Up * 0.83;
			Environment.SunColour = FLinearColor(0.80f, 0.76f, 0.68f);
			Environment.SkyLight = FLinearColor(0.50f, 0.51f, 0.54f);
			Environment.GroundLight = FLinearColor(0.36f, 0.34f, 0.31f);
			Environment.ZenithColour = FromHex(0xb9c7cf);
			Environment.HorizonColour = FromHex(0xe3e5e2);
			Environment.EdgeOpacity = EdgeOpacity;
			return Environment;
		}
	}

	FInteriorContent::FInteriorContent(const FProjectInterior& Interior)
		: Content(MakeShared<FSceneContent>())
		, Camera(Interior.Camera)
	{
		for (const FInteriorPart& Part : Interior.Parts)
		{
			FSceneOutline Outline;
			Outline.Points = Part.Shape.GetCorners();
			Outline.Bottom = Part.Shape.Min.Z;
			Outline.Top = Part.Shape.Max.Z;
			Outline.Colour = Part.Color;
			const int32 Volume = Content->AddOutline(Outline);
			if (Volume != INDEX_NONE)
			{
				Parts.Add(FPart{Part.Surface, Part.Color.ToFColorSRGB(), Volume});
				Bounds += Part.Shape.GetBounds();
			}
		}
		if (!Bounds.IsValid)
		{
			return;
		}
		const double Top = FMath::Min(Bounds.Min.Z, TableTop);
		FSceneBox Table;
		Table.Centre = FVector(Bounds.GetCenter().X, Bounds.GetCenter().Y, Top - 0.5 * TableThickness);
		Table.Extent = FVector(Bounds.GetExtent().X + TableMargin, Bounds.GetExtent().Y + TableMargin, 0.5 * TableThickness);
		Table.Colour = FromHex(0xe6e3dc);
		Content->AddBox(Table);
		Content->SetEnvironment(MakeDaylight(Camera, Top - TableThickness));
	}

	FSceneCamera::FPose FInteriorContent::GetPose(double AspectRatio) const
	{
		FSceneCamera::FPose Pose;
		Pose.Target = Camera.Target;
		Pose.Yaw = Camera.Yaw;
		Pose.Pitch = Camera.Pitch;
		Pose.Distance = Camera.Distance;
		if (!HasDistance())
		{
			FSceneCamera Framing;
			Framing.JumpTo(Pose);
			Framing.Frame(Bounds, AspectRatio);
			Pose = Framing.GetGoal();
		}
		return Pose;
	}

	bool FInteriorContent::ShowLooks(TConstArrayView<FVariantSurfaceLook> Looks)
	{
		TMap<FName, const FVariantSurfaceLook*> LookOfSurface;
		for (const FVariantSurfaceLook& Look : Looks)
		{
			LookOfSurface.Add(Look.Surface, &Look);
		}
		const uint64 Before = Content->GetRevision();
		for (const FPart& Part : Parts)
		{
			const FVariantSurfaceLook* const Look = LookOfSurface.FindRef(Part.Surface);
			Content->SetColour(Part.Volume, Look ? Look->Color.ToFColorSRGB() : Part.Own);
			Content->SetRoughness(Part.Volume, Look ? Look->Roughness : 1.0f);
		}
		return Content->GetRevision() != Before;
	}

	TArray<int32> FInteriorContent::FindVolumes(FName Surface) const
	{
		TArray<int32> Volumes;
		for (const FPart& Part : Parts)
		{
			if (Part.Surface == Surface)
			{
				Volumes.Add(Part.Volume);
			}
		}
		return Volumes;
	}
}
