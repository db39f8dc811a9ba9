#include "Gl/GlObjects.h"

namespace Host
{
	namespace
	{
		struct FKindTraits
		{
			const TCHAR* Name;
			GLenum LabelType;
		};

		constexpr FKindTraits Kinds[] = {
			{ TEXT("buffers"), GL_BUFFER },
			{ TEXT("vertex arrays"), GL_VERTEX_ARRAY },
			{ TEXT("textures"), GL_TEXTURE },
			{ TEXT("samplers"), GL_SAMPLER },
			{ TEXT("framebuffers"), GL_FRAMEBUFFER },
			{ TEXT("renderbuffers"), GL_RENDERBUFFER },
			{ TEXT("programs"), GL_PROGRAM },
		};
		static_assert(UE_ARRAY_COUNT(Kinds) == static_cast<int32>(EGlObjectKind::Program) + 1);

		int32 NumAlive[UE_ARRAY_COUNT(Kinds)] = {};

		GLuint Create(EGlObjectKind Kind)
		{
			GLuint Name = 0;
			switch (Kind)
			{
			case EGlObjectKind::Buffer:
				glGenBuffers(1, &Name);
				break;
			case EGlObjectKind::VertexArray:
				glGenVertexArrays(1, &Name);
				break;
			case EGlObjectKind::Texture:
				glGenTextures(1, &Name);
				break;
			case EGlObjectKind::Sampler:
				glGenSamplers(1, &Name);
				break;
			case EGlObjectKind::Framebuffer:
				glGenFramebuffers(1, &Name);
				break;
			case EGlObjectKind::Renderbuffer:
				glGenRenderbuffers(1, &Name);
				break;
			case EGlObjectKind::Program:
			default:
				Name = glCreateProgram();
				break;
			}
			return Name;
		}

		void Delete(EGlObjectKind Kind, GLuint Name)
		{
			switch (Kind)
			{
			case EGlObjectKind::Buffer:
				glDeleteBuffers(1, &Name);
				break;
			case EGlObjectKind::VertexArray:
				glDeleteVertexArrays(1, &Name);
				break;
			case EGlObjectKind::Texture:
				glDeleteTextures(1, &Name);
				break;
			case EGlObjectKind::Sampler:
				glDeleteSamplers(1, &Name);
				break;
			case EGlObjectKind::Framebuffer:
				glDeleteFramebuffers(1, &Name);
				break;
			case EGlObjectKind::Renderbuffer:
				glDeleteRenderbuffers(1, &Name);
				break;
			case EGlObjectKind::Program:
			default:
				glDeleteProgram(Name);
				break;
			}
		}

		/** Objects of these kinds exist only once they were bound. */
		void BindOnce(EGlObjectKind Kind, GLuint Name)
		{
			if (Kind == EGlObjectKind::Buffer)
			{
				glBindBuffer(GL_ARRAY_BUFFER, Name);
			}
			else if (Kind == EGlObjectKind::VertexArray)
			{
				glBindVertexArray(Name);
			}
			else if (Kind == EGlObjectKind::Texture)
			{
				glBindTexture(GL_TEXTURE_2D, Name);
			}
			else if (Kind == EGlObjectKind::Framebuffer)
			{
				glBindFramebuffer(GL_FRAMEBUFFER, Name);
			}
			else if (Kind == EGlObjectKind::Renderbuffer)
			{
				glBindRenderbuffer(GL_RENDERBUFFER, Name);
			}
		}
	}

	FGlObject::FGlObject(EGlObjectKind InKind, const ANSICHAR* Label)
		: Name(Create(InKind))
		, Kind(InKind)
	{
		++NumAlive[static_cast<int32>(Kind)];
		BindOnce(Kind, Name);
		if (epoxy_gl_version() >= 43 || epoxy_has_gl_extension("GL_KHR_debug"))
		{
			glObjectLabel(Kinds[static_cast<int32>(Kind)].LabelType, Name, -1, Label);
		}
	}

	FGlObject::FGlObject(FGlObject&& Other) noexcept
		: Name(Other.Name)
		, Kind(Other.Kind)
	{
		Other.Name = 0;
	}

	FGlObject& FGlObject::operator=(FGlObject&& Other) noexcept
	{
		if (this != &Other)
		{
			Reset();
			Name = Other.Name;
			Kind = Other.Kind;
			Other.Name = 0;
		}
		return *this;
	}

	void FGlObject::Reset()
	{
		if (Name != 0)
		{
			Delete(Kind, Name);
			--NumAlive[static_cast<int32>(Kind)];
			Name = 0;
		}
	}

	int32 FGlObject::GetNumAlive()
	{
		int32 Sum = 0;
		for (const int32 Count : NumAlive)
		{
			Sum += Count;
		}
		return Sum;
	}

	FString FGlObject::DescribeAlive()
	{
		FString Text;
		for (int32 Kind = 0; Kind < static_cast<int32>(UE_ARRAY_COUNT(Kinds)); ++Kind)
		{
			if (NumAlive[Kind] > 0)
			{
				Text += FString::Printf(TEXT("%s%d %s"), Text.IsEmpty() ? TEXT("") : TEXT(", "), NumAlive[Kind], Kinds[Kind].Name);
			}
		}
		return Text;
	}
}
