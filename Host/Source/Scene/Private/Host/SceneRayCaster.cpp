#include "Host/SceneRayCaster.h"

#include <algorithm>

#include "Host/RayShapes.h"

namespace Host
{
	namespace
	{
		constexpr int32 LeafSize = 4;
		/** A hierarchy that halves is never deeper. */
		constexpr int32 MostDepth = 64;
		/** Bounds are a little larger than the shapes, for what rounding takes away. */
		constexpr float Slack = 0.5f;
	}

	struct FSceneRayCaster::FRay
	{
		FVector Start;
		/** Of length 1. */
		FVector Direction;
		FVector3f RelativeStart;
		FVector3f Inverse;
		double Length;
		int32 Volume = INDEX_NONE;

		FRay(const FVector& InStart, const FVector& InDirection, double InLength, const FVector& Origin)
			: Start(InStart)
			, Direction(InDirection)
			, RelativeStart(InStart - Origin)
			, Inverse(GetInverse(InDirection.X), GetInverse(InDirection.Y), GetInverse(InDirection.Z))
			, Length(InLength)
		{
		}

		/** Distance at which the ray enters the box; infinite when it does not before its end. */
		float GetEntry(const FVector3f& Min, const FVector3f& Max) const
		{
			float Near = 0.0f;
			float Far = static_cast<float>(Length);
			for (int32 Axis = 0; Axis < 3; ++Axis)
			{
				const float First = (Min[Axis] - RelativeStart[Axis]) * Inverse[Axis];
				const float Second = (Max[Axis] - RelativeStart[Axis]) * Inverse[Axis];
				Near = FMath::Max(Near, FMath::Min(First, Second));
				Far = FMath::Min(Far, FMath::Max(First, Second));
			}
			return Near <= Far ? Near : MAX_flt;
		}

	private:
		/** Large in place of infinite, which would give no number where the ray runs along a side. */
		static float GetInverse(double Value)
		{
			constexpr double Least = 1.0e-12;
			return static_cast<float>(1.0 / (FMath::Abs(Value) < Least ? (Value < 0.0 ? -Least : Least) : Value));
		}
	};

	bool FSceneRayCaster::Cast(const FVector& Start, const FVector& Direction, FSceneHit& OutHit)
	{
		BuildIfNeeded();
		FRay Ray(Start, Direction.GetSafeNormal(), MAX_flt, Origin);
		if (!Search(Ray, false))
		{
			return false;
		}
		OutHit.Volume = Ray.Volume;
		OutHit.Distance = Ray.Length;
		OutHit.Place = Start + Ray.Direction * Ray.Length;
		return true;
	}

	bool FSceneRayCaster::IsBlocked(const FVector& Start, const FVector& End, double Tolerance)
	{
		const FVector Way = End - Start;
		const double Length = Way.Size() - Tolerance;
		if (Length <= 0.0)
		{
			return false;
		}
		BuildIfNeeded();
		FRay Ray(Start, Way.GetSafeNormal(), Length, Origin);
		return Search(Ray, true);
	}

	double FSceneRayCaster::GetDistanceToGround(const FVector& Start, const FVector& Direction) const
	{
		const double Slope = Direction.GetSafeNormal().Z;
		const double Height = Start.Z - Content->GetEnvironment().GroundHeight;
		return Height * Slope < 0.0 ? -Height / Slope : -1.0;
	}

	void FSceneRayCaster::BuildIfNeeded()
	{
		if (Content->GetShapeRevision() == ShapeRevision)
		{
			return;
		}
		ShapeRevision = Content->GetShapeRevision();
		++NumBuilds;
		const int32 Num = Content->Num();
		Nodes.Reset();
		Order.SetNumUninitialized(Num);
		if (Num == 0)
		{
			return;
		}
		Origin = (Content->GetBounds().Min + Content->GetBounds().Max) * 0.5;
		TArray<FBox3f> Bounds;
		Bounds.Reserve(Num);
		for (int32 Volume = 0; Volume < Num; ++Volume)
		{
			const FBox Exact = Content->GetVolumeBounds(Volume);
			Bounds.Add(FBox3f(FVector3f(Exact.Min - Origin) - FVector3f(Slack), FVector3f(Exact.Max - Origin) + FVector3f(Slack)));
			Order[Volume] = Volume;
		}
		Nodes.Reserve(Num);
		BuildNode(Bounds, 0, Num);
	}

	void FSceneRayCaster::BuildNode(TArray<FBox3f>& Bounds, int32 First, int32 Count)
	{
		FBox3f Whole(ForceInit);
		FBox3f Centres(ForceInit);
		for (int32 Place = First; Place < First + Count; ++Place)
		{
			const FBox3f& Box = Bounds[Order[Place]];
			Whole += Box;
			Centres += Box.Min + Box.Max;
		}
		const int32 Index = Nodes.Add(FNode{ Whole.Min, Whole.Max, First, Count });
		if (Count <= LeafSize)
		{
			return;
		}
		const FVector3f Spread = Centres.Max - Centres.Min;
		const int32 Axis = Spread.X >= Spread.Y && Spread.X >= Spread.Z ? 0 : (Spread.Y >= Spread.Z ? 1 : 2);
		int32* const Begin = Order.GetData() + First;
		const int32 Half = Count / 2;
		std::nth_element(Begin, Begin + Half, Begin + Count, [&Bounds, Axis](int32 A, int32 B)
		{
			return Bounds[A].Min[Axis] + Bounds[A].Max[Axis] < Bounds[B].Min[Axis] + Bounds[B].Max[Axis];
		});
		BuildNode(Bounds, First, Half);
		Nodes[Index].Link = Nodes.Num();
		Nodes[Index].Count = 0;
		BuildNode(Bounds, First + Half, Count - Half);
	}

	bool FSceneRayCaster::Search(FRay& Ray, bool bAny)
	{
		if (Nodes.Num() == 0)
		{
			return false;
		}
		struct FOpen
		{
			int32 Node;
			float Entry;
		};
		FOpen Stack[MostDepth];
		int32 NumOpen = 0;
		Stack[NumOpen++] = { 0, Ray.GetEntry(Nodes[0].Min, Nodes[0].Max) };
		bool bHit = false;
		while (NumOpen > 0)
		{
			const FOpen Open = Stack[--NumOpen];
			if (Open.Entry > Ray.Length)
			{
				continue;
			}
			const FNode& Node = Nodes[Open.Node];
			for (int32 Place = Node.Link; Place < Node.Link + Node.Count; ++Place)
			{
				bHit |= Try(Ray, Order[Place]);
			}
			if (bHit && bAny)
			{
				return true;
			}
			if (Node.Count == 0)
			{
				FOpen Nearer = { Open.Node + 1, Ray.GetEntry(Nodes[Open.Node + 1].Min, Nodes[Open.Node + 1].Max) };
				FOpen Farther = { Node.Link, Ray.GetEntry(Nodes[Node.Link].Min, Nodes[Node.Link].Max) };
				if (Farther.Entry < Nearer.Entry)
				{
					Swap(Nearer, Farther);
				}
				for (const FOpen& Child : { Farther, Nearer })
				{
					if (Child.Entry < MAX_flt)
					{
						Stack[NumOpen++] = Child;
					}
				}
			}
		}
		return bHit;
	}

	bool FSceneRayCaster::Try(FRay& Ray, int32 Volume)
	{
		if (Content->GetColours()[Volume].A != 255)
		{
			return false;
		}
		++NumTried;
		const FSceneContent::FVolume& Kind = Content->GetVolume(Volume);
		const double Distance = Kind.bBox ? GetDistanceToBox(Ray.Start, Ray.Direction, Content->GetBoxes()[Kind.Index])
			: GetDistanceToExtrusion(Ray.Start, Ray.Direction, Content->GetOutlines()[Kind.Index]);
		if (!(Distance >= 0.0) || Distance >= Ray.Length)
		{
			return false;
		}
		Ray.Length = Distance;
		Ray.Volume = Volume;
		return true;
	}
}
