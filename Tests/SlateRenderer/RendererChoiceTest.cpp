#include "Host/RendererChoice.h"

#include <gtest/gtest.h>

using namespace Host;

TEST(RendererChoice, ReadsTheThreeNames)
{
	ERendererChoice Choice = ERendererChoice::Auto;
	EXPECT_TRUE(ParseRendererChoice(TEXT("gl"), Choice));
	EXPECT_EQ(Choice, ERendererChoice::Gl);
	EXPECT_TRUE(ParseRendererChoice(TEXT("cpu"), Choice));
	EXPECT_EQ(Choice, ERendererChoice::Cpu);
	EXPECT_TRUE(ParseRendererChoice(TEXT("auto"), Choice));
	EXPECT_EQ(Choice, ERendererChoice::Auto);
}

TEST(RendererChoice, RefusesOtherNames)
{
	ERendererChoice Choice = ERendererChoice::Cpu;
	EXPECT_FALSE(ParseRendererChoice(TEXT("vulkan"), Choice));
	EXPECT_FALSE(ParseRendererChoice(TEXT(""), Choice));
	EXPECT_EQ(Choice, ERendererChoice::Cpu);
}

TEST(RendererChoice, HeadlessAutomaticChoiceIsTheCpu)
{
	FString Error;
	const TSharedPtr<FSlateRenderer> Renderer = MakeRenderer(ERendererChoice::Auto, true, Error);

	ASSERT_TRUE(Renderer.IsValid());
	EXPECT_EQ(FString(Renderer->GetName()), FString(TEXT("cpu")));
	EXPECT_TRUE(Error.IsEmpty());
}

TEST(RendererChoice, OpenGlWorksHeadless)
{
	FString Error;
	const TSharedPtr<FSlateRenderer> Renderer = MakeRenderer(ERendererChoice::Gl, true, Error);

	ASSERT_TRUE(Renderer.IsValid()) << TCHAR_TO_UTF8(*Error);
	EXPECT_EQ(FString(Renderer->GetName()), FString(TEXT("gl")));
}

TEST(RendererChoice, InitialisingAReadyRendererChangesNothing)
{
	for (const ERendererChoice Choice : { ERendererChoice::Cpu, ERendererChoice::Gl })
	{
		FString Error;
		const TSharedPtr<FSlateRenderer> Renderer = MakeRenderer(Choice, true, Error);
		ASSERT_TRUE(Renderer.IsValid()) << TCHAR_TO_UTF8(*Error);
		const TUniquePtr<FWindowSurface> Surface = Renderer->CreateSurface(FIntPoint(8, 8), nullptr);
		ASSERT_TRUE(Surface.IsValid());

		EXPECT_TRUE(Renderer->Initialize(Error));

		// What was made before still draws.
		const FPixelRect Everything[] = { FPixelRect::Make(0, 0, 8, 8) };
		Surface->DrawFrame(FWindowFrame{ FColor(10, 20, 30), Everything, [](const FPixelRect&, FElementVisitor) {} });
		TArray<FColor> Pixels;
		FIntPoint Size;
		Surface->ReadPixels(Pixels, Size);
		ASSERT_EQ(Pixels.Num(), 64);
		EXPECT_EQ(Pixels[0], FColor(10, 20, 30));
	}
}
