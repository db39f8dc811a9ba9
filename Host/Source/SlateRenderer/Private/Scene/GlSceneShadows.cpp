#include "Scene/GlSceneShadows.h"

#include "Host/SceneContent.h"
#include "Host/SceneRenderer.h"
#include "Scene/GlSceneFrame.h"
#include "Scene/GlSceneShapes.h"

namespace Host
{
	namespace
	{
		constexpr FGlSceneShadows::FLevel Levels[FSceneQuality::HighestLevel + 1] = { { 1, 0 }, { 1024, 1 }, { 2048, 2 }, { 2048, 3 }, { 4096, 5 } };

		constexpr int32 FootprintMapSize = 512;
		/** Ground about the volumes on which their footprints still tell, in centimetres. */
		constexpr double FootprintMargin = 1500.0;
		/** What is lower counts as ground, such as paths and lawns; in centimetres. */
		constexpr double FootprintHeight = 60.0;
		/** How far the soft edge of a footprint reaches, in centimetres, and the taps for that. */
		constexpr float BlurReach = 420.0f;
		constexpr float BlurTaps = 8.0f;

		/** From a box, by rows of axes of length 1, to clip space. */
		FMatrix MakeOrthographic(const FVector& X, const FVector& Y, const FVector& Z, const FVector& Min, const FVector& Max)
		{
			const FVector Scale = FVector(2.0, 2.0, 2.0) / (Max - Min);
			const FVector Shift = (Max + Min) / (Min - Max);
			return FMatrix(FVector4(X.X * Scale.X, Y.X * Scale.Y, Z.X * Scale.Z, 0.0), FVector4(X.Y * Scale.X, Y.Y * Scale.Y, Z.Y * Scale.Z, 0.0),
				FVector4(X.Z * Scale.X, Y.Z * Scale.Y, Z.Z * Scale.Z, 0.0), FVector4(Shift.X, Shift.Y, Shift.Z, 1.0));
		}

		FBox GetRelativeBounds(const FSceneContent& Content, const FVector& Origin)
		{
			const FBox& Bounds = Content.GetBounds();
			return Bounds.IsValid ? FBox(Bounds.Min - Origin, Bounds.Max - Origin) : FBox(FVector(-100.0), FVector(100.0));
		}

		void SetFilter(GLint Filter, GLint Wrap)
		{
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, 0);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, Filter);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, Filter);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, Wrap);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, Wrap);
		}

		FGlObject MakeFootprintMap(const ANSICHAR* Label)
		{
			FGlObject Texture(EGlObjectKind::Texture, Label);
			glTexImage2D(GL_TEXTURE_2D, 0, GL_R8, FootprintMapSize, FootprintMapSize, 0, GL_RED, GL_UNSIGNED_BYTE, nullptr);
			// Beyond the map nothing stands.
			SetFilter(GL_LINEAR, GL_CLAMP_TO_BORDER);
			return Texture;
		}

		bool IsComplete(FString& OutError)
		{
			if (glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE)
			{
				return true;
			}
			OutError = TEXT("the maps of shadows cannot be drawn into");
			return false;
		}
	}

	const FGlSceneShadows::FLevel& FGlSceneShadows::GetLevel(int32 Shadows)
	{
		return Levels[FMath::Clamp(Shadows, 0, FSceneQuality::HighestLevel)];
	}

	bool FGlSceneShadows::Create(int32 Level, FString& OutError)
	{
		*this = FGlSceneShadows();
		CurrentLevel = Level;
		MapSize = GetLevel(Level).MapSize;
		Taps = GetLevel(Level).Taps;
		EmptyArray = FGlObject(EGlObjectKind::VertexArray, "Scene maps");
		ShadowMap = FGlObject(EGlObjectKind::Texture, "Scene shadows");
		glTexImage2D(GL_TEXTURE_2D, 0, GL_DEPTH_COMPONENT24, MapSize, MapSize, 0, GL_DEPTH_COMPONENT, GL_UNSIGNED_INT, nullptr);
		SetFilter(GL_LINEAR, GL_CLAMP_TO_BORDER);
		const float Lit[4] = { 1.0f, 1.0f, 1.0f, 1.0f };
		glTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_BORDER_COLOR, Lit);
		glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_COMPARE_MODE, GL_COMPARE_REF_TO_TEXTURE);
		glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_COMPARE_FUNC, GL_LEQUAL);
		Footprints = MakeFootprintMap("Scene footprints");
		if (Taps == 0)
		{
			return true;
		}
		ShadowFramebuffer = FGlObject(EGlObjectKind::Framebuffer, "Scene shadows");
		glFramebufferTexture2D(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_TEXTURE_2D, ShadowMap.Get(), 0);
		glDrawBuffer(GL_NONE);
		glReadBuffer(GL_NONE);
		if (!IsComplete(OutError))
		{
			return false;
		}
		Blurred = MakeFootprintMap("Scene footprints, half way");
		FootprintFramebuffer = FGlObject(EGlObjectKind::Framebuffer, "Scene footprints");
		glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, Footprints.Get(), 0);
		FootprintDepth = FGlObject(EGlObjectKind::Renderbuffer, "Scene footprints");
		glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, FootprintMapSize, FootprintMapSize);
		glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, FootprintDepth.Get());
		if (!IsComplete(OutError))
		{
			return false;
		}
		BlurFramebuffer = FGlObject(EGlObjectKind::Framebuffer, "Scene footprints, half way");
		glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, Blurred.Get(), 0);
		return IsComplete(OutError);
	}

	bool FGlSceneShadows::Update(const FSceneContent& Content, const FGlSceneShapes& Shapes, int32 Shadows, const FPrograms& Programs,
		TFunctionRef<void(const FGlSceneFrame&)> Write, FSceneCounters& Counters, FString& OutError)
	{
		glActiveTexture(GL_TEXTURE0);
		if (Shadows != CurrentLevel && !Create(Shadows, OutError))
		{
			return false;
		}
		if (Taps == 0 || Content.GetShadowRevision() == ShadowRevision)
		{
			return true;
		}
		ShadowRevision = Content.GetShadowRevision();
		glEnable(GL_DEPTH_TEST);
		glDisable(GL_CULL_FACE);
		DrawShadowMap(Content, Shapes, Programs, Write, Counters);
		DrawFootprints(Content, Shapes, Programs, Write, Counters);
		++Counters.ShadowMaps;
		return true;
	}

	void FGlSceneShadows::DrawShadowMap(const FSceneContent& Content, const FGlSceneShapes& Shapes, const FPrograms& Programs, TFunctionRef<void(const FGlSceneFrame&)> Write, FSceneCounters& Counters)
	{
		const FVector FromSun = -Content.GetEnvironment().SunDirection.GetSafeNormal();
		const FVector Across = FMath::Abs(FromSun.Z) < 0.99 ? (FromSun ^ FVector::UpVector).GetSafeNormal() : FVector::ForwardVector;
		const FVector Along = Across ^ FromSun;
		const FBox Bounds = GetRelativeBounds(Content, Shapes.GetOrigin());
		FBox Seen(ForceInit);
		for (int32 Corner = 0; Corner < 8; ++Corner)
		{
			const FVector Place(Corner & 1 ? Bounds.Max.X : Bounds.Min.X, Corner & 2 ? Bounds.Max.Y : Bounds.Min.Y, Corner & 4 ? Bounds.Max.Z : Bounds.Min.Z);
			Seen += FVector(Place | Across, Place | Along, Place | FromSun);
		}
		// The filter reads a little beyond, and the ground below lies farther from the sun.
		const FVector Margin = (Seen.Max - Seen.Min) * (4.0 / MapSize) + FVector(1.0);
		const FMatrix ToClip = MakeOrthographic(Across, Along, FromSun, Seen.Min - Margin, Seen.Max + Margin);
		ShadowTexel = static_cast<float>(FMath::Max(Seen.Max.X - Seen.Min.X, Seen.Max.Y - Seen.Min.Y) / MapSize);
		const FMatrix ToShare(FVector4(0.5, 0.0, 0.0, 0.0), FVector4(0.0, 0.5, 0.0, 0.0), FVector4(0.0, 0.0, 0.5, 0.0), FVector4(0.5, 0.5, 0.5, 1.0));
		ToSun = FMatrix44f(ToClip * ToShare);

		FGlSceneFrame Frame;
		Frame.ViewProjection = FMatrix44f(ToClip);
		Write(Frame);
		glBindFramebuffer(GL_FRAMEBUFFER, ShadowFramebuffer.Get());
		glViewport(0, 0, MapSize, MapSize);
		glClear(GL_DEPTH_BUFFER_BIT);
		// Faces along the light would shade themselves in stripes.
		glEnable(GL_POLYGON_OFFSET_FILL);
		glPolygonOffset(1.5f, 2.0f);
		glUseProgram(Programs.Depth.Get());
		Shapes.BindColours();
		Shapes.Draw(Counters);
		glDisable(GL_POLYGON_OFFSET_FILL);
	}

	void FGlSceneShadows::DrawFootprints(const FSceneContent& Content, const FGlSceneShapes& Shapes, const FPrograms& Programs, TFunctionRef<void(const FGlSceneFrame&)> Write, FSceneCounters& Counters)
	{
		const FBox Bounds = GetRelativeBounds(Content, Shapes.GetOrigin());
		const double Ground = Content.GetEnvironment().GroundHeight - Shapes.GetOrigin().Z;
		const FVector Min(Bounds.Min.X - FootprintMargin, Bounds.Min.Y - FootprintMargin, Ground + FootprintHeight);
		const FVector Max(Bounds.Max.X + FootprintMargin, Bounds.Max.Y + FootprintMargin, FMath::Max(Bounds.Max.Z, Min.Z) + 1.0);
		FootprintSize = FVector2f(static_cast<float>(Max.X - Min.X), static_cast<float>(Max.Y - Min.Y));
		ToFootprints = FVector4f(1.0f / FootprintSize.X, 1.0f / FootprintSize.Y, -static_cast<float>(Min.X) / FootprintSize.X, -static_cast<float>(Min.Y) / FootprintSize.Y);

		FGlSceneFrame Frame;
		// From below upward: what is lowest hides what is higher.
		Frame.ViewProjection = FMatrix44f(MakeOrthographic(FVector::ForwardVector, FVector::RightVector, FVector::UpVector, Min, Max));
		Write(Frame);
		glBindFramebuffer(GL_FRAMEBUFFER, FootprintFramebuffer.Get());
		glViewport(0, 0, FootprintMapSize, FootprintMapSize);
		glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
		glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
		glUseProgram(Programs.Footprint.Get());
		Shapes.BindColours();
		Shapes.Draw(Counters);
		Blur(Programs, Counters);
	}

	void FGlSceneShadows::Blur(const FPrograms& Programs, FSceneCounters& Counters)
	{
		glDisable(GL_DEPTH_TEST);
		glUseProgram(Programs.Blur.Get());
		glBindVertexArray(EmptyArray.Get());
		glBindFramebuffer(GL_FRAMEBUFFER, BlurFramebuffer.Get());
		glBindTexture(GL_TEXTURE_2D, Footprints.Get());
		glUniform2f(Programs.BlurStep, BlurReach / BlurTaps / FootprintSize.X, 0.0f);
		glDrawArrays(GL_TRIANGLES, 0, 3);
		glBindFramebuffer(GL_FRAMEBUFFER, FootprintFramebuffer.Get());
		glBindTexture(GL_TEXTURE_2D, Blurred.Get());
		glUniform2f(Programs.BlurStep, 0.0f, BlurReach / BlurTaps / FootprintSize.Y);
		glDrawArrays(GL_TRIANGLES, 0, 3);
		Counters.DrawCalls += 2;
	}

	void FGlSceneShadows::Describe(FGlSceneFrame& Frame) const
	{
		Frame.ToSun = ToSun;
		Frame.ToFootprints = ToFootprints;
		Frame.SunDirection.W = static_cast<float>(Taps);
		Frame.SunColour.W = ShadowTexel;
	}
}
