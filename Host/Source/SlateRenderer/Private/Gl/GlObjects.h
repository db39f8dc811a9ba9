#pragma once

#include "CoreMinimal.h"
#include "Gl/GlApi.h"

namespace Host
{
	enum class EGlObjectKind : uint8
	{
		Buffer,
		VertexArray,
		Texture,
		Sampler,
		Framebuffer,
		Renderbuffer,
		Program,
	};

	/**
	 * One OpenGL object, deleted with its holder and counted by kind. Its label is shown by graphics debuggers. A new one
	 * is left bound.
	 */
	class FGlObject
	{
	public:
		FGlObject() = default;
		FGlObject(EGlObjectKind InKind, const ANSICHAR* Label);
		~FGlObject() { Reset(); }
		FGlObject(FGlObject&& Other) noexcept;
		FGlObject& operator=(FGlObject&& Other) noexcept;
		FGlObject(const FGlObject&) = delete;
		FGlObject& operator=(const FGlObject&) = delete;

		GLuint Get() const { return Name; }
		bool IsValid() const { return Name != 0; }
		void Reset();

		/** Objects alive of all kinds, as "2 textures, 1 buffer"; empty when there are none. */
		static FString DescribeAlive();
		static int32 GetNumAlive();

	private:
		GLuint Name = 0;
		EGlObjectKind Kind = EGlObjectKind::Buffer;
	};
}
