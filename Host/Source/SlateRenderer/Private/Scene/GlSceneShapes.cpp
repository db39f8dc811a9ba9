#include "Scene/GlSceneShapes.h"

#include <cstddef>

#include "Host/SceneContent.h"
#include "Host/SceneRenderer.h"
#include "Scene/SceneMesh.h"

namespace Host
{
	namespace
	{
		enum EAttribute : GLuint
		{
			Place = 0,
			Normal = 1,
			Edges = 2,
			Centre = 3,
			Extent = 4,
			Volume = 5,
		};

		struct FBoxInstance
		{
			/** W: cosine of the turn. */
			float Centre[4];
			/** W: sine of the turn. */
			float Extent[4];
			uint32 Volume;
		};
		static_assert(sizeof(FBoxInstance) == 36);

		const void* ToOffset(size_t Offset)
		{
			return reinterpret_cast<const void*>(Offset);
		}

		/** Of the bound buffer of vertices. */
		void SetVertexPointers()
		{
			glEnableVertexAttribArray(Place);
			glVertexAttribPointer(Place, 3, GL_FLOAT, GL_FALSE, sizeof(FSceneVertex), ToOffset(offsetof(FSceneVertex, Place)));
			glEnableVertexAttribArray(Normal);
			glVertexAttribPointer(Normal, 3, GL_BYTE, GL_TRUE, sizeof(FSceneVertex), ToOffset(offsetof(FSceneVertex, Normal)));
			glEnableVertexAttribArray(Edges);
			glVertexAttribPointer(Edges, 4, GL_UNSIGNED_BYTE, GL_TRUE, sizeof(FSceneVertex), ToOffset(offsetof(FSceneVertex, Edges)));
		}

		void SetInstancePointers()
		{
			glEnableVertexAttribArray(Centre);
			glVertexAttribPointer(Centre, 4, GL_FLOAT, GL_FALSE, sizeof(FBoxInstance), ToOffset(offsetof(FBoxInstance, Centre)));
			glEnableVertexAttribArray(Extent);
			glVertexAttribPointer(Extent, 4, GL_FLOAT, GL_FALSE, sizeof(FBoxInstance), ToOffset(offsetof(FBoxInstance, Extent)));
			glEnableVertexAttribArray(Volume);
			glVertexAttribIPointer(Volume, 1, GL_UNSIGNED_INT, sizeof(FBoxInstance), ToOffset(offsetof(FBoxInstance, Volume)));
			for (const GLuint Attribute : { Centre, Extent, Volume })
			{
				glVertexAttribDivisor(Attribute, 1);
			}
		}

		template <typename T>
		void Upload(const FGlObject& Buffer, const TArray<T>& Data, FSceneCounters& Counters)
		{
			glBindBuffer(GL_ARRAY_BUFFER, Buffer.Get());
			glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(sizeof(T)) * Data.Num(), Data.GetData(), GL_STATIC_DRAW);
			Counters.UploadedBytes += static_cast<int64>(sizeof(T)) * Data.Num();
		}

		void UploadColours(int32 FirstRow, FIntPoint Size, int32 FirstColumn, const FColor* Pixels, FSceneCounters& Counters)
		{
			glTexSubImage2D(GL_TEXTURE_2D, 0, FirstColumn, FirstRow, Size.X, Size.Y, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, Pixels);
			Counters.UploadedBytes += static_cast<int64>(Size.X) * Size.Y * static_cast<int64>(sizeof(FColor));
		}
	}

	namespace
	{
		/** A texture whose texels are fetched by volume. */
		FGlObject MakeTexels(const ANSICHAR* Label)
		{
			FGlObject Texture(EGlObjectKind::Texture, Label);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, 0);
			return Texture;
		}
	}

	void FGlSceneShapes::Create()
	{
		TArray<FSceneVertex> Vertices;
		AppendCube(Vertices);
		NumCubeVertices = Vertices.Num();

		BoxArray = FGlObject(EGlObjectKind::VertexArray, "Scene boxes");
		Cube = FGlObject(EGlObjectKind::Buffer, "Scene cube");
		glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(sizeof(FSceneVertex)) * Vertices.Num(), Vertices.GetData(), GL_STATIC_DRAW);
		SetVertexPointers();
		Boxes = FGlObject(EGlObjectKind::Buffer, "Scene boxes");
		SetInstancePointers();

		OutlineArray = FGlObject(EGlObjectKind::VertexArray, "Scene outlines");
		Outlines = FGlObject(EGlObjectKind::Buffer, "Scene outlines");
		SetVertexPointers();
		glEnableVertexAttribArray(Volume);
		glVertexAttribIPointer(Volume, 1, GL_UNSIGNED_INT, sizeof(FSceneVertex), ToOffset(offsetof(FSceneVertex, Volume)));

		Colours = MakeTexels("Scene colours");
		Roughness = MakeTexels("Scene roughness");
	}

	void FGlSceneShapes::Update(const FSceneContent& Content, FSceneCounters& Counters)
	{
		glBindBuffer(GL_PIXEL_UNPACK_BUFFER, 0);
		glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
		glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
		if (Content.GetShapeRevision() != ShapeRevision)
		{
			// Single precision suffices near the middle, wherever on the globe the scene lies.
			Origin = Content.GetBounds().IsValid ? (Content.GetBounds().Min + Content.GetBounds().Max) * 0.5 : FVector::ZeroVector;
			UploadBoxes(Content, Counters);
			UploadOutlines(Content, Counters);
			UploadAllColours(Content, Counters);
			ShapeRevision = Content.GetShapeRevision();
		}
		else if (Content.GetColourRevision() != ColourRevision)
		{
			UpdateColours(Content, Counters);
		}
		ColourRevision = Content.GetColourRevision();
		if (Content.GetRoughnessRevision() != RoughnessRevision)
		{
			UploadRoughness(Content, Counters);
			RoughnessRevision = Content.GetRoughnessRevision();
		}
	}

	void FGlSceneShapes::UploadBoxes(const FSceneContent& Content, FSceneCounters& Counters)
	{
		TArray<FBoxInstance> Instances;
		Instances.Reserve(Content.GetBoxes().Num());
		for (const FSceneContent::FPlacedBox& Box : Content.GetBoxes())
		{
			const FVector3f Middle(Box.Centre - Origin);
			const FVector3f Half(Box.Extent);
			Instances.Add(FBoxInstance{ { Middle.X, Middle.Y, Middle.Z, static_cast<float>(Box.Turn.X) },
				{ Half.X, Half.Y, Half.Z, static_cast<float>(Box.Turn.Y) }, static_cast<uint32>(Box.Volume) });
		}
		Upload(Boxes, Instances, Counters);
		NumBoxes = Instances.Num();
	}

	void FGlSceneShapes::UploadOutlines(const FSceneContent& Content, FSceneCounters& Counters)
	{
		TArray<FSceneVertex> Vertices;
		for (const FSceneContent::FExtrusion& Outline : Content.GetOutlines())
		{
			AppendExtrusion(Outline, Origin, Vertices);
		}
		Upload(Outlines, Vertices, Counters);
		NumOutlineVertices = Vertices.Num();
	}

	void FGlSceneShapes::UploadAllColours(const FSceneContent& Content, FSceneCounters& Counters)
	{
		const TArray<FColor>& All = Content.GetColours();
		const int32 NumRows = FMath::DivideAndRoundUp(All.Num(), ColoursPerRow);
		glBindTexture(GL_TEXTURE_2D, Colours.Get());
		if (NumRows != NumColourRows && NumRows > 0)
		{
			glTexImage2D(GL_TEXTURE_2D, 0, GL_SRGB8_ALPHA8, ColoursPerRow, NumRows, 0, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, nullptr);
			NumColourRows = NumRows;
		}
		const int32 NumWhole = All.Num() / ColoursPerRow;
		if (NumWhole > 0)
		{
			UploadColours(0, FIntPoint(ColoursPerRow, NumWhole), 0, All.GetData(), Counters);
		}
		if (const int32 Rest = All.Num() % ColoursPerRow; Rest > 0)
		{
			UploadColours(NumWhole, FIntPoint(Rest, 1), 0, All.GetData() + static_cast<int64>(NumWhole) * ColoursPerRow, Counters);
		}
	}

	void FGlSceneShapes::UpdateColours(const FSceneContent& Content, FSceneCounters& Counters)
	{
		// Beyond this, one large upload is quicker than many small ones.
		constexpr int32 MostSingle = 64;
		TArray<int32> Changed;
		if (!Content.GetColoursSetSince(ColourRevision, Changed) || Changed.Num() > MostSingle)
		{
			UploadAllColours(Content, Counters);
			return;
		}
		glBindTexture(GL_TEXTURE_2D, Colours.Get());
		for (const int32 Index : Changed)
		{
			UploadColours(Index / ColoursPerRow, FIntPoint(1, 1), Index % ColoursPerRow, &Content.GetColours()[Index], Counters);
		}
	}

	void FGlSceneShapes::UploadRoughness(const FSceneContent& Content, FSceneCounters& Counters)
	{
		const TArray<uint8>& All = Content.GetRoughness();
		bAnySmooth = !All.IsEmpty();
		if (bAnySmooth)
		{
			const int32 NumRows = FMath::DivideAndRoundUp(All.Num(), ColoursPerRow);
			TArray<uint8> Rows = All;
			Rows.SetNumZeroed(NumRows * ColoursPerRow);
			glBindTexture(GL_TEXTURE_2D, Roughness.Get());
			glTexImage2D(GL_TEXTURE_2D, 0, GL_R8, ColoursPerRow, NumRows, 0, GL_RED, GL_UNSIGNED_BYTE, Rows.GetData());
			Counters.UploadedBytes += Rows.Num();
		}
	}

	void FGlSceneShapes::Draw(FSceneCounters& Counters) const
	{
		if (NumBoxes > 0)
		{
			glBindVertexArray(BoxArray.Get());
			glDrawArraysInstanced(GL_TRIANGLES, 0, NumCubeVertices, NumBoxes);
			++Counters.DrawCalls;
		}
		if (NumOutlineVertices > 0)
		{
			glBindVertexArray(OutlineArray.Get());
			// Places are where they are: no box to put them into.
			glVertexAttrib4f(Centre, 0.0f, 0.0f, 0.0f, 1.0f);
			glVertexAttrib4f(Extent, 1.0f, 1.0f, 1.0f, 0.0f);
			glDrawArrays(GL_TRIANGLES, 0, NumOutlineVertices);
			++Counters.DrawCalls;
		}
	}
}
