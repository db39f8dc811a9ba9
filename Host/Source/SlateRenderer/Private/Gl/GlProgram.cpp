#include "Gl/GlProgram.h"

namespace Host
{
	namespace
	{
		FString GetShaderLog(GLuint Shader)
		{
			ANSICHAR Text[1024] = {};
			glGetShaderInfoLog(Shader, sizeof(Text) - 1, nullptr, Text);
			return FString(UTF8_TO_TCHAR(Text));
		}

		bool Attach(GLuint Program, GLenum Type, TConstArrayView<const ANSICHAR*> Sources, FString& OutError)
		{
			const GLuint Shader = glCreateShader(Type);
			glShaderSource(Shader, Sources.Num(), Sources.GetData(), nullptr);
			glCompileShader(Shader);
			GLint bCompiled = 0;
			glGetShaderiv(Shader, GL_COMPILE_STATUS, &bCompiled);
			if (bCompiled)
			{
				glAttachShader(Program, Shader);
			}
			else
			{
				OutError = FString::Printf(TEXT("the driver refuses a shader: %s"), *GetShaderLog(Shader));
			}
			// The program keeps what is attached to it.
			glDeleteShader(Shader);
			return bCompiled != 0;
		}

		bool Link(GLuint Program, FString& OutError)
		{
			glLinkProgram(Program);
			GLint bLinked = 0;
			glGetProgramiv(Program, GL_LINK_STATUS, &bLinked);
			if (!bLinked)
			{
				ANSICHAR Text[1024] = {};
				glGetProgramInfoLog(Program, sizeof(Text) - 1, nullptr, Text);
				OutError = FString::Printf(TEXT("the driver cannot link the shaders: %s"), *FString(UTF8_TO_TCHAR(Text)));
			}
			return bLinked != 0;
		}
	}

	FGlObject MakeGlProgram(const ANSICHAR* Label, TConstArrayView<const ANSICHAR*> VertexSources, TConstArrayView<const ANSICHAR*> FragmentSources, FString& OutError)
	{
		FGlObject Program(EGlObjectKind::Program, Label);
		if (!Attach(Program.Get(), GL_VERTEX_SHADER, VertexSources, OutError) || !Attach(Program.Get(), GL_FRAGMENT_SHADER, FragmentSources, OutError)
			|| !Link(Program.Get(), OutError))
		{
			Program.Reset();
		}
		return Program;
	}
}
