#include "Host/SampleScene.h"

#include "Host/SceneContent.h"

namespace Host
{
	namespace
	{
		/** Lengths in centimetres. */
		constexpr double Storey = 300.0;
		constexpr double Slab = 28.0;
		/** How far slabs stand out of the walls. */
		constexpr double Overhang = 22.0;
		constexpr double Bay = 380.0;

		FLinearColor FromHex(uint32 Colour)
		{
			return FLinearColor(FColor(0xff000000u | Colour));
		}

		/** Places in a frame that is turned and moved: what is built along its axes stands where it should. */
		struct FSite
		{
			FVector2D Origin;
			double Yaw;

			FVector2D ToScene(double X, double Y) const
			{
				const double Radians = FMath::DegreesToRadians(Yaw);
				return Origin + FVector2D(X * FMath::Cos(Radians) - Y * FMath::Sin(Radians), X * FMath::Sin(Radians) + Y * FMath::Cos(Radians));
			}
		};

		class FBuilder
		{
		public:
			FBuilder(FSceneContent& InContent, const FSite& InSite)
				: Content(InContent)
				, Site(InSite)
			{
			}

			/** From a corner to the opposite one. */
			void AddBox(double X0, double Y0, double Z0, double X1, double Y1, double Z1, const FLinearColor& Colour)
			{
				FSceneBox Box;
				Box.Centre = FVector(Site.ToScene(0.5 * (X0 + X1), 0.5 * (Y0 + Y1)), 0.5 * (Z0 + Z1));
				Box.Extent = FVector(0.5 * (X1 - X0), 0.5 * (Y1 - Y0), 0.5 * (Z1 - Z0));
				Box.Yaw = Site.Yaw;
				Box.Colour = Colour;
				Content.AddBox(Box);
			}

			void AddOutline(TConstArrayView<FVector2D> Points, double Bottom, double Top, const FLinearColor& Colour)
			{
				FSceneOutline Outline;
				for (const FVector2D& Point : Points)
				{
					Outline.Points.Add(Site.ToScene(Point.X, Point.Y));
				}
				Outline.Bottom = Bottom;
				Outline.Top = Top;
				Outline.Colour = Colour;
				Content.AddOutline(Outline);
			}

		private:
			FSceneContent& Content;
			FSite Site;
		};

		struct FBlockColours
		{
			FLinearColor Wall;
			FLinearColor Slab;
			FLinearColor Glass;
			FLinearColor Balcony;
		};

		/** A block of whole storeys: bays with windows on all sides, and balconies on the front, toward lower Y. */
		class FBlock
		{
		public:
			FBlock(FBuilder& InBuilder, int32 InBays, double InDepth, int32 InStoreys, const FBlockColours& InColours)
				: Builder(InBuilder)
				, Bays(InBays)
				, Length(InBays * Bay)
				, Depth(InDepth)
				, Storeys(InStoreys)
				, Colours(InColours)
			{
			}

			void Build()
			{
				for (int32 Level = 0; Level < Storeys; ++Level)
				{
					BuildStorey(Level);
				}
				const double Top = Storeys * Storey;
				Builder.AddBox(-Overhang, -Overhang, Top, Length + Overhang, Depth + Overhang, Top + 45.0, Colours.Slab);
				Builder.AddBox(0.36 * Length, 0.30 * Depth, Top + 45.0, 0.36 * Length + 520.0, 0.30 * Depth + 420.0, Top + 290.0, Colours.Wall);
			}

		private:
			void BuildStorey(int32 Level)
			{
				const double Floor = Level * Storey;
				const double Ceiling = Floor + Storey;
				Builder.AddBox(0.0, 0.0, Floor, Length, Depth, Ceiling - Slab, Colours.Wall);
				Builder.AddBox(-Overhang, -Overhang, Ceiling - Slab, Length + Overhang, Depth + Overhang, Ceiling, Colours.Slab);
				for (int32 Index = 0; Index < Bays; ++Index)
				{
					const double Start = Index * Bay;
					// A door to the balcony, or a shop's window on the ground floor.
					const double Margin = Level == 0 ? 40.0 : 75.0;
					Builder.AddBox(Start + Margin, -7.0, Floor + (Level == 0 ? 15.0 : 8.0), Start + Bay - Margin, 5.0, Ceiling - Slab - 30.0, Colours.Glass);
					Builder.AddBox(Start + 115.0, Depth - 5.0, Floor + 85.0, Start + Bay - 115.0, Depth + 7.0, Ceiling - Slab - 35.0, Colours.Glass);
					if (Level > 0 && (Index + Level) % 3 != 2)
					{
						BuildBalcony(Start + 30.0, Start + Bay - 30.0, Floor);
					}
				}
				const int32 SideBays = FMath::FloorToInt32(Depth / Bay);
				for (int32 Index = 0; Index < SideBays; ++Index)
				{
					const double Middle = (Index + 0.5) * Depth / SideBays;
					Builder.AddBox(-7.0, Middle - 65.0, Floor + 85.0, 5.0, Middle + 65.0, Ceiling - Slab - 35.0, Colours.Glass);
					Builder.AddBox(Length - 5.0, Middle - 65.0, Floor + 85.0, Length + 7.0, Middle + 65.0, Ceiling - Slab - 35.0, Colours.Glass);
				}
			}

			void BuildBalcony(double Left, double Right, double Floor)
			{
				constexpr double Reach = 165.0;
				constexpr double Rail = 8.0;
				Builder.AddBox(Left, -Reach, Floor - Slab, Right, -Overhang, Floor - 6.0, Colours.Slab);
				Builder.AddBox(Left, -Reach, Floor - 6.0, Right, -Reach + Rail, Floor + 98.0, Colours.Balcony);
				Builder.AddBox(Left, -Reach + Rail, Floor - 6.0, Left + Rail, -Overhang, Floor + 98.0, Colours.Balcony);
				Builder.AddBox(Right - Rail, -Reach + Rail, Floor - 6.0, Right, -Overhang, Floor + 98.0, Colours.Balcony);
			}

			FBuilder& Builder;
			int32 Bays;
			double Length;
			double Depth;
			int32 Storeys;
			FBlockColours Colours;
		};

		/** A round shape with so many corners. */
		TArray<FVector2D> MakeCircle(const FVector2D& Middle, double Radius, int32 Corners, double FirstAngle)
		{
			TArray<FVector2D> Points;
			for (int32 Index = 0; Index < Corners; ++Index)
			{
				const double Angle = FMath::DegreesToRadians(FirstAngle + 360.0 * Index / Corners);
				Points.Add(Middle + FVector2D(FMath::Cos(Angle), FMath::Sin(Angle)) * Radius);
			}
			return Points;
		}

		/** A crown of tapering tiers on a trunk. */
		void AddTree(FBuilder& Builder, const FVector2D& Place, double Height, int32 Kind)
		{
			const uint32 Greens[] = { 0x6f8f5a, 0x7f9a5e, 0x8aa568 };
			const FLinearColor Leaves = FromHex(Greens[Kind % 3]);
			const double Trunk = 0.30 * Height;
			Builder.AddBox(Place.X - 14.0, Place.Y - 14.0, 0.0, Place.X + 14.0, Place.Y + 14.0, Trunk, FromHex(0x7a6652));
			const double Radii[] = { 0.22, 0.29, 0.31, 0.28, 0.22, 0.13 };
			const double Step = 0.70 * Height / UE_ARRAY_COUNT(Radii);
			for (int32 Tier = 0; Tier < static_cast<int32>(UE_ARRAY_COUNT(Radii)); ++Tier)
			{
				Builder.AddOutline(MakeCircle(Place, Radii[Tier] * Height, 14, 17.0 * (Kind + Tier)), Trunk + Tier * Step, Trunk + (Tier + 1) * Step, Leaves);
			}
		}

		/** A curved block: an arc of storeys without windows on its rounded sides but for bands of glass. */
		void AddCurvedBlock(FBuilder& Builder, const FVector2D& Middle, double Inner, double Outer, double FirstAngle, double LastAngle, int32 Storeys, const FBlockColours& Colours)
		{
			const auto MakeArc = [&](double Grow)
			{
				constexpr int32 Steps = 22;
				TArray<FVector2D> Points;
				for (int32 Side = 0; Side < 2; ++Side)
				{
					const double Radius = Side == 0 ? Outer + Grow : Inner - Grow;
					const double Turn = FMath::RadiansToDegrees(Grow / Radius);
					for (int32 Step = 0; Step <= Steps; ++Step)
					{
						const double Share = static_cast<double>(Side == 0 ? Step : Steps - Step) / Steps;
						const double Angle = FMath::DegreesToRadians(FMath::Lerp(FirstAngle - Turn, LastAngle + Turn, Share));
						Points.Add(Middle + FVector2D(FMath::Cos(Angle), FMath::Sin(Angle)) * Radius);
					}
				}
				return Points;
			};
			for (int32 Level = 0; Level < Storeys; ++Level)
			{
				const double Floor = Level * Storey;
				Builder.AddOutline(MakeArc(0.0), Floor, Floor + 90.0, Colours.Wall);
				Builder.AddOutline(MakeArc(-10.0), Floor + 90.0, Floor + Storey - Slab, Colours.Glass);
				Builder.AddOutline(MakeArc(Overhang * 1.6), Floor + Storey - Slab, Floor + Storey, Colours.Slab);
			}
			Builder.AddOutline(MakeArc(Overhang * 1.6), Storeys * Storey, Storeys * Storey + 40.0, Colours.Slab);
		}

		void AddGarden(FSceneContent& Content)
		{
			FBuilder Builder(Content, FSite{ FVector2D(0.0, 0.0), 0.0 });
			Builder.AddBox(-6400.0, -5200.0, 0.0, 6400.0, 5200.0, 3.0, FromHex(0xd6d1c6));
			Builder.AddBox(-3300.0, -1450.0, 3.0, 1150.0, 1350.0, 9.0, FromHex(0xa3b583));
			Builder.AddBox(-6200.0, -4950.0, 3.0, -4350.0, 4950.0, 9.0, FromHex(0xa3b583));
			Builder.AddBox(-3300.0, -4950.0, 3.0, 2500.0, -4250.0, 9.0, FromHex(0xa3b583));
			Builder.AddOutline(MakeCircle(FVector2D(-1150.0, -60.0), 760.0, 40, 0.0), 9.0, 22.0, FromHex(0xd8d2c4));
			Builder.AddOutline(MakeCircle(FVector2D(-1150.0, -60.0), 640.0, 40, 0.0), 22.0, 26.0, FromHex(0x86b2c4));
			const FVector2D Trees[] = { { -2900.0, -1050.0 }, { -2450.0, 900.0 }, { -3000.0, 250.0 }, { 250.0, 980.0 }, { 780.0, -980.0 }, { 700.0, 320.0 }, { -300.0, -1150.0 },
				{ -1700.0, 1080.0 }, { -5600.0, -4200.0 }, { -5000.0, -2900.0 }, { -5700.0, -1500.0 }, { -4950.0, 300.0 }, { -5600.0, 1900.0 }, { -5050.0, 3500.0 }, { -5750.0, 4500.0 },
				{ -2700.0, -4600.0 }, { -1400.0, -4650.0 }, { 0.0, -4580.0 }, { 1500.0, -4620.0 } };
			for (int32 Index = 0; Index < static_cast<int32>(UE_ARRAY_COUNT(Trees)); ++Index)
			{
				AddTree(Builder, Trees[Index], 620.0 + 53.0 * (Index * 7 % 5), Index);
			}
		}
	}

	void SampleScene::Build(FSceneContent& Content)
	{
		const FBlockColours White = { FromHex(0xf1ece2), FromHex(0xfaf8f3), FromHex(0x5c7686), FromHex(0xd9dcd8) };
		const FBlockColours Sand = { FromHex(0xe0cbab), FromHex(0xf3ead9), FromHex(0x5a6f7b), FromHex(0xcdb694) };
		const FBlockColours Clay = { FromHex(0xc98f72), FromHex(0xefe3d8), FromHex(0x546874), FromHex(0xe6d5c6) };
		const FBlockColours Slate = { FromHex(0x9fb0b8), FromHex(0xe9eef0), FromHex(0x4d6675), FromHex(0xc4d0d4) };

		AddGarden(Content);
		FBuilder North(Content, FSite{ FVector2D(-3300.0, 2150.0), 0.0 });
		FBlock(North, 10, 1350.0, 6, White).Build();
		FBuilder South(Content, FSite{ FVector2D(-3350.0, -3500.0), 0.0 });
		FBlock(South, 9, 1250.0, 3, Clay).Build();
		FBuilder Tower(Content, FSite{ FVector2D(1750.0, 2200.0), 0.0 });
		FBlock(Tower, 5, 1800.0, 11, Sand).Build();
		FBuilder East(Content, FSite{ FVector2D(4300.0, -3600.0), 90.0 });
		FBlock(East, 8, 1300.0, 5, Slate).Build();
		FBuilder Curve(Content, FSite{ FVector2D(0.0, 0.0), 0.0 });
		AddCurvedBlock(Curve, FVector2D(4900.0, 2500.0), 900.0, 1900.0, -60.0, 100.0, 4, White);
	}

	FSceneCamera::FPose SampleScene::GetPose()
	{
		FSceneCamera::FPose Pose;
		Pose.Target = FVector(300.0, 250.0, 1500.0);
		Pose.Yaw = 50.0;
		Pose.Pitch = -13.0;
		Pose.Distance = 15500.0;
		return Pose;
	}
}
