#include "Scene/SceneMesh.h"

namespace Host
{
	namespace
	{
		constexpr uint8 Off = 255;

		struct FEdgeDistances
		{
			uint8 Values[4];
		};

		class FMeshWriter
		{
		public:
			FMeshWriter(const FVector& InOrigin, int32 InVolume, TArray<FSceneVertex>& InVertices)
				: Origin(InOrigin)
				, Volume(static_cast<uint32>(InVolume))
				, Vertices(InVertices)
			{
			}

			void SetNormal(const FVector& InNormal) { Normal = InNormal; }

			void Add(const FVector& Place, const FEdgeDistances& Edges)
			{
				FSceneVertex& Vertex = Vertices.AddDefaulted_GetRef();
				const FVector3f Relative(Place - Origin);
				Vertex.Place[0] = Relative.X;
				Vertex.Place[1] = Relative.Y;
				Vertex.Place[2] = Relative.Z;
				Vertex.Normal[0] = ToByte(Normal.X);
				Vertex.Normal[1] = ToByte(Normal.Y);
				Vertex.Normal[2] = ToByte(Normal.Z);
				Vertex.Normal[3] = 0;
				FMemory::Memcpy(Vertex.Edges, Edges.Values, sizeof(Vertex.Edges));
				Vertex.Volume = Volume;
			}

			/** Corners in order, seen from outside; all sides are edges but AD and BC, which may be smooth. */
			void AddQuad(const FVector& A, const FVector& B, const FVector& C, const FVector& D, bool bEdgeAtStart = true, bool bEdgeAtEnd = true)
			{
				const uint8 Start = bEdgeAtStart ? 0 : Off;
				const uint8 End = bEdgeAtEnd ? 0 : Off;
				const FEdgeDistances AtA = { { Start, Off, 0, Off } };
				const FEdgeDistances AtB = { { Off, End, 0, Off } };
				const FEdgeDistances AtC = { { Off, End, Off, 0 } };
				const FEdgeDistances AtD = { { Start, Off, Off, 0 } };
				Add(A, AtA);
				Add(B, AtB);
				Add(C, AtC);
				Add(A, AtA);
				Add(C, AtC);
				Add(D, AtD);
			}

		private:
			static int8 ToByte(double Value) { return static_cast<int8>(FMath::RoundToInt(127.0 * Value)); }

			FVector Origin;
			FVector Normal = FVector(0.0, 0.0, 1.0);
			uint32 Volume;
			TArray<FSceneVertex>& Vertices;
		};

		bool AreNeighbours(int32 A, int32 B, int32 Num)
		{
			return (A + 1) % Num == B || (B + 1) % Num == A;
		}

		/** A roof, or turned over, a floor. */
		void AddCap(const FSceneContent::FExtrusion& Extrusion, double Height, bool bRoof, FMeshWriter& Writer)
		{
			Writer.SetNormal(FVector(0.0, 0.0, bRoof ? 1.0 : -1.0));
			const TArray<int32>& Triangles = Extrusion.Triangles;
			for (int32 First = 0; First + 2 < Triangles.Num(); First += 3)
			{
				FEdgeDistances Edges[3] = { { { Off, Off, Off, Off } }, { { Off, Off, Off, Off } }, { { Off, Off, Off, Off } } };
				for (int32 Corner = 0; Corner < 3; ++Corner)
				{
					const int32 Next = (Corner + 1) % 3;
					const int32 Last = (Corner + 2) % 3;
					if (AreNeighbours(Triangles[First + Next], Triangles[First + Last], Extrusion.Points.Num()))
					{
						Edges[Next].Values[Corner] = 0;
						Edges[Last].Values[Corner] = 0;
					}
				}
				for (int32 Step = 0; Step < 3; ++Step)
				{
					const int32 Corner = bRoof ? Step : 2 - Step;
					Writer.Add(FVector(Extrusion.Points[Triangles[First + Corner]], Height), Edges[Corner]);
				}
			}
		}
	}

	void AppendExtrusion(const FSceneContent::FExtrusion& Extrusion, const FVector& Origin, TArray<FSceneVertex>& OutVertices)
	{
		// Walls that turn by less are parts of a round one.
		constexpr double CosineOfSmoothTurn = 0.86;
		FMeshWriter Writer(Origin, Extrusion.Volume, OutVertices);
		const int32 Num = Extrusion.Points.Num();
		const auto GetDirection = [&Extrusion, Num](int32 Index)
		{
			const FVector2D Along = Extrusion.Points[(Index + 1) % Num] - Extrusion.Points[Index % Num];
			return Along / Along.Size();
		};
		for (int32 Index = 0; Index < Num; ++Index)
		{
			const FVector2D& From = Extrusion.Points[Index];
			const FVector2D& To = Extrusion.Points[(Index + 1) % Num];
			const FVector2D Along = GetDirection(Index);
			Writer.SetNormal(FVector(Along.Y, -Along.X, 0.0));
			Writer.AddQuad(FVector(From, Extrusion.Bottom), FVector(To, Extrusion.Bottom), FVector(To, Extrusion.Top), FVector(From, Extrusion.Top),
				(GetDirection(Index + Num - 1) | Along) < CosineOfSmoothTurn, (Along | GetDirection(Index + 1)) < CosineOfSmoothTurn);
		}
		AddCap(Extrusion, Extrusion.Top, true, Writer);
		AddCap(Extrusion, Extrusion.Bottom, false, Writer);
	}

	void AppendCube(TArray<FSceneVertex>& OutVertices)
	{
		const FVector2D Corners[4] = { FVector2D(-1.0, -1.0), FVector2D(1.0, -1.0), FVector2D(1.0, 1.0), FVector2D(-1.0, 1.0) };
		const FSceneContent::FExtrusion Walls = { TArray<FVector2D>(Corners, 4), {}, -1.0, 1.0, 0 };
		AppendExtrusion(Walls, FVector::ZeroVector, OutVertices);
		// In one piece, unlike the caps of outlines, which know only the edges of their triangles.
		FMeshWriter Writer(FVector::ZeroVector, 0, OutVertices);
		Writer.AddQuad(FVector(Corners[0], 1.0), FVector(Corners[1], 1.0), FVector(Corners[2], 1.0), FVector(Corners[3], 1.0));
		Writer.SetNormal(FVector(0.0, 0.0, -1.0));
		Writer.AddQuad(FVector(Corners[0], -1.0), FVector(Corners[3], -1.0), FVector(Corners[2], -1.0), FVector(Corners[1], -1.0));
	}
}
