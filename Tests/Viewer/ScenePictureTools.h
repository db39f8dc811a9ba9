#pragma once

#include "CoreMinimal.h"
#include "Host/SceneContent.h"
#include "Host/SceneRenderer.h"
#include "Host/SceneView.h"
#include "Host/Texture.h"

namespace Host
{
	/** A black cube of ten metres on bright ground, without lines along its edges, lit from low X at 45 degrees. */
	inline void BuildCube(FSceneContent& Content)
	{
		FSceneEnvironment Environment;
		Environment.SunDirection = FVector(-1.0, 0.0, 1.0);
		Environment.EdgeOpacity = 0.0f;
		Content.SetEnvironment(Environment);
		FSceneBox Box;
		Box.Centre = FVector(0.0, 0.0, 500.0);
		Box.Extent = FVector(500.0, 500.0, 500.0);
		Box.Colour = FLinearColor::Black;
		Content.AddBox(Box);
	}

	/** From above and a little from the side, so that edges run askew. */
	inline FSceneView MakeView()
	{
		FSceneView View = FSceneView::FromAngles(FVector(0.0, 0.0, 0.0), 20.0, -60.0);
		View.Location = FVector(0.0, 0.0, 300.0) - View.Forward * 6000.0;
		View.FarDistance = 60000.0;
		return View;
	}

	/** A picture that was read back. */
	class FPictureReader
	{
	public:
		explicit FPictureReader(const FSceneRenderer& Renderer)
			: Texture(Renderer.GetPicture())
		{
		}

		FIntPoint GetSize() const { return Texture->GetSize(); }

		FColor At(FIntPoint Pixel) const
		{
			const uint32 Value = Texture->GetPixels()[Pixel.Y * GetSize().X + Pixel.X];
			return FColor(Value);
		}

		/** Where a place of the scene is seen. */
		FColor At(const FSceneView& View, const FVector& Place) const
		{
			FVector2D Pixel;
			View.Project(Place, FVector2D(GetSize()), Pixel);
			return At(FIntPoint(FMath::FloorToInt32(Pixel.X), FMath::FloorToInt32(Pixel.Y)));
		}

		/** How many pixels are neither as dark as the cube nor as bright as what is about it. */
		int32 CountBetween() const
		{
			int32 Count = 0;
			for (int32 Y = 0; Y < GetSize().Y; ++Y)
			{
				for (int32 X = 0; X < GetSize().X; ++X)
				{
					const uint8 Green = At(FIntPoint(X, Y)).G;
					Count += Green > 30 && Green < 150;
				}
			}
			return Count;
		}

		int32 CountDark() const
		{
			int32 Count = 0;
			for (int32 Index = 0; Index < GetSize().X * GetSize().Y; ++Index)
			{
				Count += FColor(Texture->GetPixels()[Index]).G < 90;
			}
			return Count;
		}

	private:
		TSharedPtr<const FTexture> Texture;
	};
}
