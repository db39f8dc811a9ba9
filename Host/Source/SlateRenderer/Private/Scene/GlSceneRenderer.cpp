#include "Scene/GlSceneRenderer.h"

#include "Gl/GlProgram.h"
#include "Host/SceneContent.h"
#include "Host/Texture.h"
#include "RendererLog.h"
#include "Rendering/SlateRenderer.h"
#include "Scene/GlSceneFrame.h"
#include "Scene/GlSceneShaders.h"

namespace Host
{
	namespace
	{
		constexpr int32 RequiredVersion = 33;
		constexpr GLuint FrameBinding = 0;

		enum EUnit : GLint
		{
			ColoursUnit = 0,
			ShadowUnit = 1,
			FootprintUnit = 2,
			RoughnessUnit = 3,
		};

		/** Sizes of the scene from its middle at which the haze begins and hides all, and where the ground ends. */
		constexpr double HazeBegin = 0.9;
		constexpr double HazeEnd = 4.5;
		constexpr double GroundEnd = 12.0;
		constexpr double LeastSceneSize = 2000.0;

		FVector4f ToVector(const FLinearColor& Colour, float W = 0.0f)
		{
			return FVector4f(Colour.R, Colour.G, Colour.B, W);
		}

		FVector4f ToVector(const FVector& Vector, double W = 0.0)
		{
			return FVector4f(static_cast<float>(Vector.X), static_cast<float>(Vector.Y), static_cast<float>(Vector.Z), static_cast<float>(W));
		}

		double GetSceneSize(const FSceneContent& Content)
		{
			const FBox& Bounds = Content.GetBounds();
			return Bounds.IsValid ? FMath::Max(LeastSceneSize, 0.5 * (Bounds.Max - Bounds.Min).Size()) : LeastSceneSize;
		}

		FIntPoint GetDrawSize(FIntPoint Size, float Percentage, int32 MaxSize)
		{
			const float Share = FMath::Clamp(Percentage, FSceneQuality::LowestPercentage, FSceneQuality::HighestPercentage) / 100.0f;
			const auto Scale = [Share, MaxSize](int32 Length) { return FMath::Clamp(FMath::RoundToInt(static_cast<float>(Length) * Share), 1, MaxSize); };
			return FIntPoint(Scale(Size.X), Scale(Size.Y));
		}

		/** What the driver kept to tell: nothing, or what makes the context useless. */
		bool HasFailed(FString& OutError)
		{
			constexpr GLenum ContextLost = 0x0507;
			const GLenum Error = glGetError();
			if (Error != GL_OUT_OF_MEMORY && Error != ContextLost)
			{
				return false;
			}
			OutError = Error == ContextLost ? TEXT("the driver lost the context") : TEXT("the graphics processor has no memory left");
			return true;
		}

		/** Whoever else draws with the context may leave anything behind. */
		void ResetState()
		{
			glDisable(GL_BLEND);
			glDisable(GL_SCISSOR_TEST);
			glDisable(GL_STENCIL_TEST);
			glDisable(GL_FRAMEBUFFER_SRGB);
			glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
			glDepthMask(GL_TRUE);
			glDepthFunc(GL_LEQUAL);
			glFrontFace(GL_CCW);
			glCullFace(GL_BACK);
		}
	}

	TUniquePtr<FSceneRenderer> FSceneRenderer::Make(FSlateRenderer* WindowRenderer, FString& OutError)
	{
		TUniquePtr<FGlSceneRenderer> Renderer = MakeUnique<FGlSceneRenderer>(WindowRenderer);
		if (!Renderer->Create(OutError))
		{
			return nullptr;
		}
		return Renderer;
	}

	FGlSceneRenderer::~FGlSceneRenderer()
	{
		// What the objects below are deleted from.
		FString Ignored;
		MakeCurrent(Ignored);
		Targets = FGlSceneTargets();
		Shadows = FGlSceneShadows();
		Shapes = FGlSceneShapes();
		ShadowPrograms = FGlSceneShadows::FPrograms();
		for (FGlObject* const Object : { &FrameBuffer, &EmptyArray, &VolumeProgram, &GroundProgram, &SkyProgram, &ScaleProgram })
		{
			Object->Reset();
		}
	}

	bool FGlSceneRenderer::MakeCurrent(FString& OutError)
	{
		if (OwnContext.IsValid())
		{
			return OwnContext->MakeCurrent(nullptr, OutError);
		}
		if (WindowRenderer && WindowRenderer->BeginNativeDrawing())
		{
			return true;
		}
		OutError = TEXT("the windows' context cannot be used");
		return false;
	}

	bool FGlSceneRenderer::Create(FString& OutError)
	{
		if (!WindowRenderer || !WindowRenderer->BeginNativeDrawing())
		{
			OwnContext = MakeHeadlessGlContext(OutError);
			if (!OwnContext.IsValid())
			{
				return false;
			}
		}
		if (const int32 Version = epoxy_gl_version(); Version < RequiredVersion)
		{
			OutError = FString::Printf(TEXT("the driver offers OpenGL %d.%d, 3.3 is needed"), Version / 10, Version % 10);
			return false;
		}
		glGetIntegerv(GL_MAX_SAMPLES, &MaxSamples);
		glGetIntegerv(GL_MAX_TEXTURE_SIZE, &MaxSize);
		MaxSize = FMath::Min(MaxSize, FTexture::MaxSize);
		if (!MakePrograms(OutError))
		{
			return false;
		}
		Shapes.Create();
		EmptyArray = FGlObject(EGlObjectKind::VertexArray, "Scene background");
		FrameBuffer = FGlObject(EGlObjectKind::Buffer, "Scene frame");
		glBufferData(GL_ARRAY_BUFFER, sizeof(FGlSceneFrame), nullptr, GL_STREAM_DRAW);
		return true;
	}

	bool FGlSceneRenderer::MakePrograms(FString& OutError)
	{
		using namespace GlSceneShaders;
		VolumeProgram = MakeGlProgram("Scene volumes", { Frame, VolumeVertex }, { Frame, Light, VolumeFragment }, OutError);
		GroundProgram = MakeGlProgram("Scene ground", { Frame, GroundVertex }, { Frame, Light, GroundFragment }, OutError);
		SkyProgram = MakeGlProgram("Scene sky", { Frame, ScreenVertex }, { Frame, Light, SkyFragment }, OutError);
		ScaleProgram = MakeGlProgram("Scene scaling", { Frame, ScreenVertex }, { Frame, ScaleFragment }, OutError);
		ShadowPrograms.Depth = MakeGlProgram("Scene shadows", { Frame, VolumeVertex }, { Frame, DepthFragment }, OutError);
		ShadowPrograms.Footprint = MakeGlProgram("Scene footprints", { Frame, VolumeVertex }, { Frame, FootprintFragment }, OutError);
		ShadowPrograms.Blur = MakeGlProgram("Scene blur", { Frame, ScreenVertex }, { Frame, BlurFragment }, OutError);
		for (const FGlObject* const Program : { &VolumeProgram, &GroundProgram, &SkyProgram, &ScaleProgram, &ShadowPrograms.Depth, &ShadowPrograms.Footprint, &ShadowPrograms.Blur })
		{
			if (!Program->IsValid())
			{
				return false;
			}
			const GLuint Name = Program->Get();
			glUseProgram(Name);
			if (const GLuint Block = glGetUniformBlockIndex(Name, "Frame"); Block != GL_INVALID_INDEX)
			{
				glUniformBlockBinding(Name, Block, FrameBinding);
			}
			// Absent ones are at -1, which is ignored.
			glUniform1i(glGetUniformLocation(Name, "Colours"), ColoursUnit);
			glUniform1i(glGetUniformLocation(Name, "Source"), ColoursUnit);
			glUniform1i(glGetUniformLocation(Name, "ShadowMap"), ShadowUnit);
			glUniform1i(glGetUniformLocation(Name, "Footprints"), FootprintUnit);
			glUniform1i(glGetUniformLocation(Name, "Roughnesses"), RoughnessUnit);
		}
		PassLocation = glGetUniformLocation(VolumeProgram.Get(), "Pass");
		AnySmoothLocation = glGetUniformLocation(VolumeProgram.Get(), "AnySmooth");
		GroundSizeLocation = glGetUniformLocation(GroundProgram.Get(), "HalfSize");
		RatioLocation = glGetUniformLocation(ScaleProgram.Get(), "Ratio");
		ShadowPrograms.BlurStep = glGetUniformLocation(ShadowPrograms.Blur.Get(), "Step");
		return true;
	}

	bool FGlSceneRenderer::Draw(const FSceneContent& Content, const FSceneView& View, FIntPoint Size, const FSceneQuality& Quality, FString& OutError)
	{
		const FIntPoint Fitting(FMath::Clamp(Size.X, 1, MaxSize), FMath::Clamp(Size.Y, 1, MaxSize));
		const FDrawn Wanted = { Content.GetRevision(), View, Fitting, Quality };
		if (Picture.IsValid() && Wanted == Drawn)
		{
			return true;
		}
		if (!MakeCurrent(OutError))
		{
			return false;
		}
		const FIntPoint DrawSize = GetDrawSize(Fitting, Quality.ScreenPercentage, MaxSize);
		const int32 Samples = Quality.AntiAliasing > 0 ? FMath::Min(1 << FMath::Min(Quality.AntiAliasing, FSceneQuality::HighestLevel), MaxSamples) : 1;
		ResetState();
		if (!Targets.Resize(Fitting, DrawSize, Samples, OutError) || !DrawPicture(Content, View, Quality, OutError))
		{
			return false;
		}
		KeepPicture();
		if (HasFailed(OutError))
		{
			return false;
		}
		Drawn = Wanted;
		return true;
	}

	bool FGlSceneRenderer::DrawPicture(const FSceneContent& Content, const FSceneView& View, const FSceneQuality& Quality, FString& OutError)
	{
		Shapes.Update(Content, Counters);
		if (!Shadows.Update(Content, Shapes, FMath::Clamp(Quality.Shadows, 0, FSceneQuality::HighestLevel), ShadowPrograms,
				[this](const FGlSceneFrame& Frame) { WriteFrame(Frame); }, Counters, OutError))
		{
			return false;
		}

		const FIntPoint Size = Targets.GetPictureSize();
		const double AspectRatio = static_cast<double>(Size.X) / Size.Y;
		const FSceneEnvironment& Environment = Content.GetEnvironment();
		const FVector& Origin = Shapes.GetOrigin();
		const FBox& Bounds = Content.GetBounds();
		const FVector Middle = Bounds.IsValid ? (Bounds.Min + Bounds.Max) * 0.5 - Origin : FVector::ZeroVector;
		const double SceneSize = GetSceneSize(Content);
		const double HalfHeight = View.GetHalfHeight();
		FGlSceneFrame Frame;
		// Turned over, so that rows come from the top.
		const FMatrix TurnOver(FVector4(1.0, 0.0, 0.0, 0.0), FVector4(0.0, -1.0, 0.0, 0.0), FVector4(0.0, 0.0, 1.0, 0.0), FVector4(0.0, 0.0, 0.0, 1.0));
		Frame.ViewProjection = FMatrix44f(View.GetViewProjection(AspectRatio, Origin) * TurnOver);
		Frame.Eye = ToVector(View.Location - Origin, Environment.GroundHeight - Origin.Z);
		Frame.RayForward = ToVector(View.Forward);
		Frame.RayRight = ToVector(View.Right * (HalfHeight * AspectRatio));
		Frame.RayUp = ToVector(View.Up * -HalfHeight);
		Frame.SunDirection = ToVector(Environment.SunDirection.GetSafeNormal());
		Frame.SunColour = ToVector(Environment.SunColour);
		Frame.SkyLight = ToVector(Environment.SkyLight);
		Frame.GroundLight = ToVector(Environment.GroundLight);
		Frame.Zenith = ToVector(Environment.ZenithColour);
		Frame.Horizon = ToVector(Environment.HorizonColour);
		Frame.GroundColour = ToVector(Environment.GroundColour);
		Frame.Haze = FVector4f(static_cast<float>(Middle.X), static_cast<float>(Middle.Y), static_cast<float>(HazeBegin * SceneSize), static_cast<float>(HazeEnd * SceneSize));
		// A face shows half of the line along its edge, the other half is on its neighbour.
		const float LineShare = static_cast<float>(Targets.GetDrawSize().Y) / static_cast<float>(Size.Y);
		Frame.Edges = FVector4f(FMath::Max(0.5f, 0.5f * Environment.EdgeWidth * LineShare), Environment.EdgeOpacity, Quality.AntiAliasing > 0 ? 1.0f : 0.0f, 0.0f);
		Shadows.Describe(Frame);
		WriteFrame(Frame);

		Targets.Begin();
		glEnable(GL_DEPTH_TEST);
		glClear(GL_DEPTH_BUFFER_BIT);
		glActiveTexture(GL_TEXTURE0 + ShadowUnit);
		glBindTexture(GL_TEXTURE_2D, Shadows.GetShadowMap());
		glActiveTexture(GL_TEXTURE0 + FootprintUnit);
		glBindTexture(GL_TEXTURE_2D, Shadows.GetFootprints());
		glActiveTexture(GL_TEXTURE0 + RoughnessUnit);
		Shapes.BindRoughness();
		glActiveTexture(GL_TEXTURE0 + ColoursUnit);
		Shapes.BindColours();
		DrawVolumes(Content);
		Targets.Finish(ScaleProgram, RatioLocation, Counters);

		++Counters.Draws;
		Counters.Pixels += static_cast<int64>(Targets.GetDrawSize().X) * Targets.GetDrawSize().Y;
		Counters.Samples = Targets.GetSamples();
		Counters.ShadowMapSize = Quality.Shadows > 0 ? Shadows.GetMapSize() : 0;
		return true;
	}

	void FGlSceneRenderer::WriteFrame(const FGlSceneFrame& Frame)
	{
		glBindBuffer(GL_UNIFORM_BUFFER, FrameBuffer.Get());
		// The old values may still be in use.
		glBufferData(GL_UNIFORM_BUFFER, sizeof(Frame), &Frame, GL_STREAM_DRAW);
		glBindBufferBase(GL_UNIFORM_BUFFER, FrameBinding, FrameBuffer.Get());
	}

	void FGlSceneRenderer::DrawVolumes(const FSceneContent& Content)
	{
		glEnable(GL_CULL_FACE);
		glUseProgram(VolumeProgram.Get());
		glUniform1i(PassLocation, 0);
		glUniform1i(AnySmoothLocation, Shapes.IsAnySmooth() ? 1 : 0);
		Shapes.Draw(Counters);
		DrawBackground(Content);
		if (Content.GetNumGhosts() > 0)
		{
			DrawGhosts();
		}
		glDisable(GL_CULL_FACE);
	}

	/** Only the nearest of them is seen at a place: hundreds in a row would else hide what is behind as solid ones do. */
	void FGlSceneRenderer::DrawGhosts()
	{
		glUseProgram(VolumeProgram.Get());
		glUniform1i(PassLocation, 1);
		glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
		Shapes.Draw(Counters);
		glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
		glEnable(GL_BLEND);
		glBlendEquation(GL_FUNC_ADD);
		glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ZERO, GL_ONE);
		Shapes.Draw(Counters);
		glDisable(GL_BLEND);
	}

	/** After what is solid, so that what that hides is not drawn. */
	void FGlSceneRenderer::DrawBackground(const FSceneContent& Content)
	{
		glBindVertexArray(EmptyArray.Get());
		glDisable(GL_CULL_FACE);
		glUseProgram(GroundProgram.Get());
		glUniform1f(GroundSizeLocation, static_cast<float>(GroundEnd * GetSceneSize(Content)));
		glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
		glUseProgram(SkyProgram.Get());
		glDrawArrays(GL_TRIANGLES, 0, 3);
		glEnable(GL_CULL_FACE);
		Counters.DrawCalls += 2;
	}

	void FGlSceneRenderer::KeepPicture()
	{
		const FIntPoint Size = Targets.GetPictureSize();
		if (!OwnContext.IsValid())
		{
			if (!Picture.IsValid() || Picture->GetSize() != Size || Picture->GetNativeHandle() != Targets.GetPicture())
			{
				Picture = FTexture::MakeNative(Size, Targets.GetPicture(), false, TEXT("Scene"));
			}
			return;
		}
		if (!ReadBackPicture.IsValid() || ReadBackPicture->GetSize() != Size)
		{
			ReadBackPicture = FTexture::MakeUpdatable(Size, TConstArrayView<FColor>(), EPixelAlpha::Ignored, TEXT("Scene"));
			Picture = ReadBackPicture;
			Pixels.SetNumUninitialized(Size.X * Size.Y);
		}
		glBindBuffer(GL_PIXEL_PACK_BUFFER, 0);
		glPixelStorei(GL_PACK_ALIGNMENT, 4);
		glReadPixels(0, 0, Size.X, Size.Y, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, Pixels.GetData());
		ReadBackPicture->Update(FPixelRect::Make(0, 0, Size.X, Size.Y), Pixels, EPixelAlpha::Ignored);
		++Counters.ReadBacks;
	}
}
