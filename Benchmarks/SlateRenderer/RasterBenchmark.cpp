#include <benchmark/benchmark.h>

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Host/FontServices.h"
#include "Host/RendererChoice.h"
#include "Host/Texture.h"

using namespace Host;

/** From painted elements to pixels, on the CPU renderer. */
namespace
{
	constexpr FIntPoint WindowSize(1920, 1080);
	constexpr int32 NumButtons = 1000;
	constexpr int32 NumColumns = 20;

	FDrawElement MakeBox(int32 X, int32 Y, int32 Width, int32 Height, FColor Colour, float Radius, float OutlineWidth)
	{
		FDrawElement Element;
		Element.LocalToPixel.X = static_cast<float>(X);
		Element.LocalToPixel.Y = static_cast<float>(Y);
		Element.LocalSize = FVector2f(static_cast<float>(Width), static_cast<float>(Height));
		Element.Bounds = FPixelRect::Make(X, Y, X + Width, Y + Height);
		Element.Flags = EDrawElementFlags::Translated | EDrawElementFlags::PixelAligned;
		Element.Colour = Colour;
		Element.Radii = { Radius, Radius, Radius, Radius };
		Element.OutlineWidth = OutlineWidth;
		Element.OutlineColour = FColor(20, 60, 120, 255);
		return Element;
	}

	FDrawElement MakeText(int32 X, int32 Y, const FString& Text, float Points)
	{
		FSlateFontInfo Info;
		Info.Size = Points;
		FFontServices& Fonts = FFontServices::Get();
		const FShapedRunRef Run = Fonts.Shape(Fonts.GetFont(Info, 1.0f), Text);
		const FInkBounds& Ink = Run->GetInkBounds();
		FDrawElement Element;
		Element.Kind = EDrawElementKind::Glyphs;
		Element.Flags = EDrawElementFlags::Translated;
		Element.LocalToPixel.X = static_cast<float>(X);
		Element.LocalToPixel.Y = static_cast<float>(Y);
		Element.Bounds = BoundsOf(Element.LocalToPixel, Ink.Left - 1.0f, Ink.Top - 1.0f, Ink.Right + 1.0f, Ink.Bottom + 1.0f);
		Element.Payload = FShapedRunPtr(Run);
		return Element;
	}

	/** Each with a rounded box, an outline, a text and a letter in place of an icon. */
	TArray<FDrawElement> MakeButtons()
	{
		TArray<FDrawElement> Elements;
		for (int32 Index = 0; Index < NumButtons; ++Index)
		{
			const int32 X = Index % NumColumns * 96;
			const int32 Y = Index / NumColumns * 21;
			Elements.Add(MakeBox(X + 2, Y + 1, 92, 19, FColor(60, 110, 200, 255), 5.0f, 1.0f));
			Elements.Add(MakeText(X + 8, Y + 15, TEXT("@"), 10.0f));
			Elements.Add(MakeText(X + 24, Y + 15, FString::Printf(TEXT("Button %d"), Index), 9.0f));
		}
		return Elements;
	}

	TArray<FColor> MakePhoto(FIntPoint Size)
	{
		TArray<FColor> Pixels;
		Pixels.SetNumUninitialized(Size.X * Size.Y);
		for (int32 Index = 0; Index < Pixels.Num(); ++Index)
		{
			Pixels[Index] = FColor(static_cast<uint8>(Index), static_cast<uint8>(Index / Size.X), static_cast<uint8>(Index * 7), 255);
		}
		return Pixels;
	}

	class FStage
	{
	public:
		explicit FStage(TArray<FDrawElement> InElements)
			: Elements(MoveTemp(InElements))
		{
			FString Error;
			Renderer = MakeRenderer(ERendererChoice::Cpu, true, Error);
			Surface = Renderer->CreateSurface(WindowSize, nullptr);
		}

		void Draw(const FPixelRect& Damage)
		{
			const auto Traverse = [this](const FPixelRect&, FElementVisitor Visitor) { Visitor(Elements); };
			Surface->DrawFrame(FWindowFrame{ FColor(240, 240, 240, 255), MakeArrayView(&Damage, 1), Traverse });
		}

		void DrawAll()
		{
			Draw(FPixelRect::Make(0, 0, WindowSize.X, WindowSize.Y));
		}

		TArray<FDrawElement> Elements;

	private:
		TSharedPtr<FSlateRenderer> Renderer;
		TUniquePtr<FWindowSurface> Surface;
	};

	void ThousandButtons(benchmark::State& State)
	{
		FStage Stage(MakeButtons());
		for (auto _ : State)
		{
			Stage.DrawAll();
		}
	}
	BENCHMARK(ThousandButtons)->Unit(benchmark::kMillisecond);

	void OneButtonOfAThousand(benchmark::State& State)
	{
		FStage Stage(MakeButtons());
		Stage.DrawAll();
		const FPixelRect Damage = Stage.Elements[1500].Bounds;
		for (auto _ : State)
		{
			Stage.Draw(Damage);
		}
	}
	BENCHMARK(OneButtonOfAThousand)->Unit(benchmark::kMicrosecond);

	void ClearedWindow(benchmark::State& State)
	{
		FStage Stage{ TArray<FDrawElement>() };
		for (auto _ : State)
		{
			Stage.DrawAll();
		}
	}
	BENCHMARK(ClearedWindow)->Unit(benchmark::kMillisecond);

	/** A photo over the whole window, whose size is the window's times the argument in percent. */
	void Photo(benchmark::State& State)
	{
		const FIntPoint Size(static_cast<int32>(WindowSize.X * State.range(0) / 100), static_cast<int32>(WindowSize.Y * State.range(0) / 100));
		FDrawElement Element = MakeBox(0, 0, WindowSize.X, WindowSize.Y, FColor(255, 255, 255, 255), 0.0f, 0.0f);
		Element.Kind = EDrawElementKind::Image;
		Element.Payload = TSharedPtr<const FTexture>(FTexture::Make(Size, MakePhoto(Size), EPixelAlpha::Straight));
		FStage Stage({ Element });
		Stage.DrawAll();
		for (auto _ : State)
		{
			Stage.DrawAll();
		}
	}
	BENCHMARK(Photo)->Arg(100)->Arg(50)->Arg(330)->Unit(benchmark::kMillisecond);

	void TurnedBoxes(benchmark::State& State)
	{
		TArray<FDrawElement> Elements;
		for (int32 Index = 0; Index < 100; ++Index)
		{
			FDrawElement Element = MakeBox(0, 0, 150, 80, FColor(60, 110, 200, 200), 12.0f, 2.0f);
			Element.Flags = EDrawElementFlags::None;
			Element.LocalToPixel = { 0.8f, 0.6f, -0.6f, 0.8f, static_cast<float>(100 + Index % 10 * 170), static_cast<float>(Index / 10 * 90) };
			Element.Bounds = BoundsOf(Element.LocalToPixel, 0.0f, 0.0f, 150.0f, 80.0f);
			Elements.Add(MoveTemp(Element));
		}
		FStage Stage(MoveTemp(Elements));
		for (auto _ : State)
		{
			Stage.DrawAll();
		}
	}
	BENCHMARK(TurnedBoxes)->Unit(benchmark::kMillisecond);

	/** A chart: one polyline through a thousand points. */
	void Polyline(benchmark::State& State)
	{
		const TSharedRef<FLinePoints> Lines = MakeShared<FLinePoints>();
		for (int32 Index = 0; Index < 1000; ++Index)
		{
			Lines->Points.Add(FVector2f(1.9f * static_cast<float>(Index), 500.0f + static_cast<float>(Index * 7919 % 400)));
		}
		Lines->Thickness = 2.0f;
		FDrawElement Element;
		Element.Kind = EDrawElementKind::Lines;
		Element.Colour = FColor(200, 40, 40, 255);
		Element.Bounds = FPixelRect::Make(0, 0, WindowSize.X, WindowSize.Y);
		Element.Payload = TSharedPtr<const FLinePoints>(Lines);
		FStage Stage({ Element });
		for (auto _ : State)
		{
			Stage.DrawAll();
		}
	}
	BENCHMARK(Polyline)->Unit(benchmark::kMillisecond);
}
