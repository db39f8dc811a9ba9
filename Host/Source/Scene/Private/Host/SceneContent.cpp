#include "Host/SceneContent.h"

#include "Host/OutlineTriangles.h"

DEFINE_LOG_CATEGORY_STATIC(LogScene, Log, All);

namespace Host
{
	namespace
	{
		/** Changes of colour that are remembered one by one; beyond that it is cheaper to take all of them anew. */
		constexpr int32 MostRecentColours = 4096;

		/** The roughness of what mirrors nothing. */
		constexpr uint8 Chalk = 255;

		/** Far enough from those of other contents, however much is changed. */
		uint64 MakeFirstRevision()
		{
			static uint64 NumContents = 0;
			return ++NumContents << 40;
		}

		bool IsGhost(const FColor& Colour)
		{
			return Colour.A > 0 && Colour.A < 255;
		}

		int32 Refuse(int32 Index, const TCHAR* Why)
		{
			UE_LOG(LogScene, Warning, TEXT("Volume %d of the scene is left out: %s."), Index, Why);
			return INDEX_NONE;
		}

		/** True when the four points are the corners of a rectangle, to a thousandth of its size. */
		bool IsRectangle(const TArray<FVector2D>& Points)
		{
			if (Points.Num() != 4)
			{
				return false;
			}
			const FVector2D Along = Points[1] - Points[0];
			const FVector2D Across = Points[3] - Points[0];
			const double Size = FMath::Max(Along.Size(), Across.Size());
			return (Points[0] + Points[2] - Points[1] - Points[3]).Size() <= 1.0e-3 * Size && FMath::Abs(Along | Across) <= 1.0e-3 * Along.Size() * Across.Size();
		}

		FBox GetBoxBounds(const FSceneContent::FPlacedBox& Box)
		{
			const double Cos = FMath::Abs(Box.Turn.X);
			const double Sin = FMath::Abs(Box.Turn.Y);
			return FBox::BuildAABB(Box.Centre, FVector(Box.Extent.X * Cos + Box.Extent.Y * Sin, Box.Extent.X * Sin + Box.Extent.Y * Cos, Box.Extent.Z));
		}

		FBox GetOutlineBounds(const FSceneContent::FExtrusion& Outline)
		{
			FBox Bounds(ForceInit);
			for (const FVector2D& Point : Outline.Points)
			{
				Bounds += FVector(Point, Outline.Bottom);
				Bounds += FVector(Point, Outline.Top);
			}
			return Bounds;
		}

		/** Without points that repeat the one before, turning from X toward Y. */
		TArray<FVector2D> Tidy(const TArray<FVector2D>& Points)
		{
			TArray<FVector2D> Result;
			for (const FVector2D& Point : Points)
			{
				if (Result.IsEmpty() || Point != Result.Last())
				{
					Result.Add(Point);
				}
			}
			while (Result.Num() > 1 && Result.Last() == Result[0])
			{
				Result.Pop();
			}
			if (GetSignedArea(Result) < 0.0)
			{
				for (int32 Index = 0; Index < Result.Num() / 2; ++Index)
				{
					Swap(Result[Index], Result[Result.Num() - 1 - Index]);
				}
			}
			return Result;
		}
	}

	FSceneContent::FSceneContent()
		: Revision(MakeFirstRevision())
		, ShapeRevision(Revision)
		, ShadowRevision(Revision)
		, ColourRevision(Revision)
		, RoughnessRevision(Revision)
	{
	}

	int32 FSceneContent::AddVolume(bool bBox, int32 Index, const FLinearColor& Colour, const FBox& VolumeBounds)
	{
		Volumes.Add(FVolume{ bBox, Index });
		Colours.Add(Colour.ToFColorSRGB());
		NumGhosts += IsGhost(Colours.Last());
		if (!Roughness.IsEmpty())
		{
			Roughness.Add(Chalk);
			++RoughnessRevision;
		}
		Bounds += VolumeBounds;
		++Revision;
		++ShapeRevision;
		++ShadowRevision;
		return Volumes.Num() - 1;
	}

	int32 FSceneContent::AddBox(const FSceneBox& Box)
	{
		if (Box.Centre.ContainsNaN() || Box.Extent.ContainsNaN() || !FMath::IsFinite(Box.Yaw))
		{
			return Refuse(Num(), TEXT("a number of its box is not finite"));
		}
		if (!(Box.Extent.GetMin() > 0.0))
		{
			return Refuse(Num(), TEXT("its box has a length that is not above 0"));
		}
		const double Yaw = FMath::DegreesToRadians(Box.Yaw);
		const FPlacedBox Placed = { Box.Centre, Box.Extent, FVector2D(FMath::Cos(Yaw), FMath::Sin(Yaw)), Num() };
		Boxes.Add(Placed);
		return AddVolume(true, Boxes.Num() - 1, Box.Colour, GetBoxBounds(Placed));
	}

	int32 FSceneContent::AddOutline(const FSceneOutline& Outline)
	{
		for (const FVector2D& Point : Outline.Points)
		{
			if (!FMath::IsFinite(Point.X) || !FMath::IsFinite(Point.Y))
			{
				return Refuse(Num(), TEXT("a corner of its outline is not finite"));
			}
		}
		if (!FMath::IsFinite(Outline.Bottom) || !FMath::IsFinite(Outline.Top) || !(Outline.Top > Outline.Bottom))
		{
			return Refuse(Num(), TEXT("the top of its outline is not above its bottom"));
		}
		FExtrusion Extrusion = { Tidy(Outline.Points), {}, Outline.Bottom, Outline.Top, Num() };
		if (Extrusion.Points.Num() < 3 || !(GetSignedArea(Extrusion.Points) > 0.0))
		{
			return Refuse(Num(), TEXT("its outline encloses nothing"));
		}
		if (IsRectangle(Extrusion.Points))
		{
			const FVector2D Along = Extrusion.Points[1] - Extrusion.Points[0];
			const FVector2D Across = Extrusion.Points[3] - Extrusion.Points[0];
			const FVector2D Middle = (Extrusion.Points[0] + Extrusion.Points[2]) * 0.5;
			const FPlacedBox Placed = { FVector(Middle, 0.5 * (Outline.Bottom + Outline.Top)),
				FVector(0.5 * Along.Size(), 0.5 * Across.Size(), 0.5 * (Outline.Top - Outline.Bottom)), Along / Along.Size(), Num() };
			Boxes.Add(Placed);
			return AddVolume(true, Boxes.Num() - 1, Outline.Colour, GetBoxBounds(Placed));
		}
		if (!TriangulateOutline(Extrusion.Points, Extrusion.Triangles))
		{
			return Refuse(Num(), TEXT("sides of its outline cross"));
		}
		const FBox VolumeBounds = GetOutlineBounds(Extrusion);
		Outlines.Add(MoveTemp(Extrusion));
		return AddVolume(false, Outlines.Num() - 1, Outline.Colour, VolumeBounds);
	}

	void FSceneContent::Empty()
	{
		Volumes.Empty();
		Boxes.Empty();
		Outlines.Empty();
		Colours.Empty();
		Roughness.Empty();
		RecentColours.Empty();
		Bounds = FBox(ForceInit);
		NumGhosts = 0;
		++Revision;
		++ShapeRevision;
		++ShadowRevision;
		++ColourRevision;
		++RoughnessRevision;
	}

	void FSceneContent::SetRoughness(int32 Index, float InRoughness)
	{
		const uint8 New = static_cast<uint8>(FMath::RoundToInt32(FMath::Clamp(InRoughness, 0.0f, 1.0f) * Chalk));
		if (New == (Roughness.IsEmpty() ? Chalk : Roughness[Index]))
		{
			return;
		}
		if (Roughness.IsEmpty())
		{
			Roughness.Init(Chalk, Num());
		}
		Roughness[Index] = New;
		++Revision;
		++RoughnessRevision;
	}

	void FSceneContent::SetColour(int32 Index, const FColor& New)
	{
		FColor& Current = Colours[Index];
		if (New == Current)
		{
			return;
		}
		NumGhosts += IsGhost(New) - IsGhost(Current);
		ShadowRevision += (New.A == 255) != (Current.A == 255);
		Current = New;
		++Revision;
		++ColourRevision;
		if (RecentColours.Num() == MostRecentColours)
		{
			RecentColours.Reset();
		}
		RecentColours.Add(Index);
	}

	bool FSceneContent::GetColoursSetSince(uint64 SinceColourRevision, TArray<int32>& OutIndices) const
	{
		OutIndices.Reset();
		const uint64 Count = ColourRevision - SinceColourRevision;
		if (Count > static_cast<uint64>(RecentColours.Num()))
		{
			return false;
		}
		for (int32 Place = RecentColours.Num() - static_cast<int32>(Count); Place < RecentColours.Num(); ++Place)
		{
			OutIndices.Add(RecentColours[Place]);
		}
		return true;
	}

	void FSceneContent::SetEnvironment(const FSceneEnvironment& InEnvironment)
	{
		if (!(InEnvironment == Environment))
		{
			Environment = InEnvironment;
			++Revision;
			++ShadowRevision;
		}
	}

	FBox FSceneContent::GetVolumeBounds(int32 Index) const
	{
		const FVolume& Volume = Volumes[Index];
		return Volume.bBox ? GetBoxBounds(Boxes[Volume.Index]) : GetOutlineBounds(Outlines[Volume.Index]);
	}
}
