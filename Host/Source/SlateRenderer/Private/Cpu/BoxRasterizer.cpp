#include "Cpu/BoxRasterizer.h"

#include "Cpu/BoxFill.h"
#include "Cpu/CornerMasks.h"
#include "Cpu/PixelMath.h"
#include "Cpu/SpanTarget.h"
#include "Shared/BoxShape.h"

namespace Host
{
	namespace
	{
		FCornerRadii GetRadii(const FDrawElement& Element)
		{
			// The other kinds keep something else in the same place.
			return Element.Kind == EDrawElementKind::Box ? Element.Radii : FCornerRadii();
		}

		/** A box on whole pixels: a few different rows of corners, and many alike. */
		class FAlignedBox
		{
		public:
			FAlignedBox(const FDrawElement& Element, FSpanTarget& Target, FCornerMasks& Masks)
				: Fill(Element, Target)
				, Area(Target.GetArea())
				, Left(static_cast<int32>(Element.LocalToPixel.X))
				, Top(static_cast<int32>(Element.LocalToPixel.Y))
				, Width(static_cast<int32>(Element.LocalSize.X))
				, Height(static_cast<int32>(Element.LocalSize.Y))
			{
				const FCornerRadii Radii = GetRadii(Element);
				TopLeft = &Masks.Find(Radii.TopLeft, Element.OutlineWidth);
				TopRight = &Masks.Find(Radii.TopRight, Element.OutlineWidth);
				BottomLeft = &Masks.Find(Radii.BottomLeft, Element.OutlineWidth);
				BottomRight = &Masks.Find(Radii.BottomRight, Element.OutlineWidth);
				OutlineWidth = Element.OutlineWidth;
			}

			void Draw()
			{
				if (Fill.IsEmpty())
				{
					return;
				}
				for (int32 Y = Area.Top; Y < Area.Bottom; ++Y)
				{
					const int32 FromTop = Y - Top;
					const int32 FromBottom = Height - 1 - FromTop;
					const bool bUpper = FromTop <= FromBottom;
					DrawRow(Y, FMath::Min(FromTop, FromBottom), bUpper ? *TopLeft : *BottomLeft, bUpper ? *TopRight : *BottomRight);
				}
			}

		private:
			/** Depth: rows between this one and the nearer of the horizontal sides. */
			void DrawRow(int32 Y, int32 Depth, const FCornerMask& LeftMask, const FCornerMask& RightMask)
			{
				// Without an outline, only rows with rounded corners have masks worth looking at.
				const bool bOutlined = Fill.HasOutline();
				const int32 LeftCount = !bOutlined && Depth >= LeftMask.Size ? 0 : FMath::Min(LeftMask.Size, (Width + 1) / 2);
				const int32 RightCount = !bOutlined && Depth >= RightMask.Size ? 0 : FMath::Min(RightMask.Size, Width - LeftCount);
				DrawLeft(Y, Depth, LeftMask, LeftCount);
				const int32 MiddleLeft = FMath::Max<int32>(Left + LeftCount, Area.Left);
				const int32 MiddleRight = FMath::Min<int32>(Left + Width - RightCount, Area.Right);
				Fill.Uniform(Y, MiddleLeft, MiddleRight, bOutlined ? GetInnerShare(Depth) : 255);
				DrawRight(Y, Depth, RightMask, RightCount);
			}

			uint32 GetInnerShare(int32 Depth) const
			{
				return PixelMath::ToShare(0.5f - (OutlineWidth - (static_cast<float>(Depth) + 0.5f)));
			}

			void DrawLeft(int32 Y, int32 Depth, const FCornerMask& Mask, int32 Count)
			{
				const int32 First = FMath::Max(Area.Left - Left, 0);
				const int32 Last = FMath::Min(Count, Area.Right - Left);
				if (First < Last)
				{
					Fill.Masked(Y, Left + First, Mask.OuterRow(Depth) + First, Fill.HasOutline() ? Mask.InnerRow(Depth) + First : nullptr, Last - First);
				}
			}

			void DrawRight(int32 Y, int32 Depth, const FCornerMask& Mask, int32 Count)
			{
				const int32 Start = Left + Width - Count;
				const int32 First = FMath::Max(Area.Left - Start, 0);
				const int32 Last = FMath::Min(Count, Area.Right - Start);
				if (First >= Last)
				{
					return;
				}
				Mirror(Mask.OuterRow(Depth), Count, Outer);
				if (Fill.HasOutline())
				{
					Mirror(Mask.InnerRow(Depth), Count, Inner);
				}
				Fill.Masked(Y, Start + First, Outer.GetData() + First, Fill.HasOutline() ? Inner.GetData() + First : nullptr, Last - First);
			}

			static void Mirror(const uint8* Row, int32 Count, TArray<uint8>& Result)
			{
				Result.SetNumUninitialized(FMath::Max(Result.Num(), Count));
				for (int32 Index = 0; Index < Count; ++Index)
				{
					Result[Index] = Row[Count - 1 - Index];
				}
			}

			FBoxFill Fill;
			FPixelRect Area;
			int32 Left;
			int32 Top;
			int32 Width;
			int32 Height;
			float OutlineWidth;
			const FCornerMask* TopLeft;
			const FCornerMask* TopRight;
			const FCornerMask* BottomLeft;
			const FCornerMask* BottomRight;
			TArray<uint8> Outer;
			TArray<uint8> Inner;
		};

		/** A box under any transform: asks for the distance, and leaps over what is plainly inside or outside. */
		class FFreeBox
		{
		public:
			FFreeBox(const FDrawElement& Element, FSpanTarget& Target)
				: Fill(Element, Target)
				, Area(Target.GetArea())
				, Shape{ Element.LocalSize, GetRadii(Element) }
				, PixelToLocal(Element.LocalToPixel)
				, LargestStep(PixelToLocal.GetLargestStep())
				, OutlineWidth(Element.OutlineWidth)
			{
				Outer.SetNumUninitialized(Area.Width());
				Inner.SetNumUninitialized(Area.Width());
			}

			void Draw()
			{
				if (Fill.IsEmpty() || !(LargestStep > 0.0f))
				{
					return;
				}
				for (int32 Y = Area.Top; Y < Area.Bottom; ++Y)
				{
					DrawRow(Y);
				}
			}

		private:
			void DrawRow(int32 Y)
			{
				const float CentreY = static_cast<float>(Y) + 0.5f;
				int32 X = Area.Left;
				while (X < Area.Right)
				{
					const float CentreX = static_cast<float>(X) + 0.5f;
					const FEdgeDistance Edge = Shape.GetDistance(PixelToLocal.GetX(CentreX, CentreY), PixelToLocal.GetY(CentreX, CentreY));
					const int32 OutsideRun = GetRun(Edge.Distance, X);
					const int32 InsideRun = GetRun(-(Edge.Distance + OutlineWidth), X);
					if (OutsideRun > 0)
					{
						Flush(Y, X);
						X += OutsideRun;
					}
					else if (InsideRun > 0)
					{
						Flush(Y, X);
						Fill.Inside(Y, X, X + InsideRun);
						X += InsideRun;
					}
					else
					{
						AddPixel(Edge);
						++X;
					}
				}
				Flush(Y, Area.Right);
			}

			/** Pixels, from this one on, that are all beyond reach of an edge so many local units away. */
			int32 GetRun(float Distance, int32 X) const
			{
				const float Pixels = Distance / LargestStep - 0.5f;
				if (!(Pixels >= 1.0f))
				{
					return 0;
				}
				return FMath::Min(static_cast<int32>(FMath::Min(Pixels, 65536.0f)), Area.Right - X);
			}

			void AddPixel(const FEdgeDistance& Edge)
			{
				const float Step = PixelToLocal.StepOf(Edge);
				Outer[NumPending] = static_cast<uint8>(PixelMath::ToShare(0.5f - Edge.Distance / Step));
				Inner[NumPending] = static_cast<uint8>(PixelMath::ToShare(0.5f - (Edge.Distance + OutlineWidth) / Step));
				++NumPending;
			}

			/** Draws the collected pixels, which end before X. */
			void Flush(int32 Y, int32 X)
			{
				Fill.Masked(Y, X - NumPending, Outer.GetData(), Inner.GetData(), NumPending);
				NumPending = 0;
			}

			FBoxFill Fill;
			FPixelRect Area;
			FBoxShape Shape;
			FPixelToLocal PixelToLocal;
			float LargestStep;
			float OutlineWidth;
			TArray<uint8> Outer;
			TArray<uint8> Inner;
			int32 NumPending = 0;
		};

		/** True when each corner, with the outline, keeps within its own quarter. */
		bool HasSeparateCorners(const FDrawElement& Element)
		{
			const FCornerRadii Radii = GetRadii(Element);
			const float Largest = FMath::Max(FMath::Max(FMath::Max(Radii.TopLeft, Radii.TopRight), FMath::Max(Radii.BottomLeft, Radii.BottomRight)), Element.OutlineWidth);
			return 2.0f * Largest <= FMath::Min(Element.LocalSize.X, Element.LocalSize.Y);
		}
	}

	void RasterizeBox(const FDrawElement& Element, FSpanTarget& Target, FCornerMasks& Masks)
	{
		if (Element.HasFlag(EDrawElementFlags::PixelAligned) && HasSeparateCorners(Element))
		{
			FAlignedBox(Element, Target, Masks).Draw();
		}
		else
		{
			FFreeBox(Element, Target).Draw();
		}
	}
}
