#include "Gl/GlShaders.h"

namespace Host::GlShaders
{
	const ANSICHAR* const Vertex = R"(#version 330 core
layout(location = 0) in vec4 InBounds;
layout(location = 1) in vec4 InToLocal;
layout(location = 2) in vec4 InToLocalSize;
layout(location = 3) in vec4 InCorners;
layout(location = 4) in vec4 InTexture;
layout(location = 5) in vec4 InNumbers;
layout(location = 6) in uvec4 InWords;

uniform vec2 SurfaceSize;

flat out vec4 ToLocal;
flat out vec4 ToLocalSize;
flat out vec4 Corners;
flat out vec4 Texture;
flat out vec4 Numbers;
flat out uvec4 Words;

void main()
{
	ToLocal = InToLocal;
	ToLocalSize = InToLocalSize;
	Corners = InCorners;
	Texture = InTexture;
	Numbers = InNumbers;
	Words = InWords;
	// The framebuffer's first row is the window's top row: pixel coordinates need no turning round.
	vec2 Pixel = vec2((gl_VertexID & 1) == 0 ? InBounds.x : InBounds.z, (gl_VertexID & 2) == 0 ? InBounds.y : InBounds.w);
	gl_Position = vec4(Pixel / SurfaceSize * 2.0 - 1.0, 0.0, 1.0);
}
)";

	const ANSICHAR* const Fragment = R"(#version 330 core
flat in vec4 ToLocal;
flat in vec4 ToLocalSize;
flat in vec4 Corners;
flat in vec4 Texture;
flat in vec4 Numbers;
flat in uvec4 Words;

uniform sampler2D Picture;
uniform sampler2D Atlas;
uniform int NumClipEdges;
uniform vec3 ClipEdges[64];

out vec4 Result;

const uint Textured = 1u;
const uint Sliced = 2u;
const uint Frame = 4u;
const uint IgnoreAlpha = 8u;
const uint BottomUp = 16u;
const uint JoinedStart = 32u;
const uint JoinedEnd = 64u;
const uint Aliased = 128u;

bool Has(uint Flag)
{
	return (Words.w & Flag) != 0u;
}

vec4 Unpack(uint Word)
{
	vec4 Colour = vec4(float(Word >> 16 & 255u), float(Word >> 8 & 255u), float(Word & 255u), float(Word >> 24)) / 255.0;
	return vec4(Colour.rgb * Colour.a, Colour.a);
}

float ClipCoverage(vec2 Pixel)
{
	float Inside = 1.0;
	for (int Index = 0; Index < NumClipEdges; ++Index)
	{
		Inside = min(Inside, dot(ClipEdges[Index].xy, Pixel) + ClipEdges[Index].z + 0.5);
	}
	return clamp(Inside, 0.0, 1.0);
}

vec2 LocalOf(vec2 Pixel)
{
	return vec2(ToLocal.x * Pixel.x + ToLocal.y * Pixel.y + ToLocal.z, ToLocal.w * Pixel.x + ToLocalSize.x * Pixel.y + ToLocalSize.y);
}

// Distance from the edge of the box in x; y and z hold its gradient by local axes.
vec3 BoxDistance(vec2 Place, vec2 Size, vec4 Radii)
{
	bvec2 Far = greaterThan(Place, 0.5 * Size);
	float Radius = Far.y ? (Far.x ? Radii.z : Radii.w) : (Far.x ? Radii.y : Radii.x);
	vec2 FromSides = mix(Place, Size - Place, vec2(Far));
	vec2 Signs = mix(vec2(-1.0), vec2(1.0), vec2(Far));
	vec2 Corner = vec2(Radius) - FromSides;
	if (Corner.x > 0.0 && Corner.y > 0.0)
	{
		float Length = length(Corner);
		return vec3(Length - Radius, Corner / Length * Signs);
	}
	return Corner.x > Corner.y ? vec3(Corner.x - Radius, Signs.x, 0.0) : vec3(Corner.y - Radius, 0.0, Signs.y);
}

float SlicedShare(float Place, float Length, float StartMargin, float EndMargin, float StartShare, float EndShare, float Repeat)
{
	if (Place < StartMargin && StartMargin > 0.0)
	{
		return Place / StartMargin * StartShare;
	}
	if (Place >= Length - EndMargin && EndMargin > 0.0)
	{
		return 1.0 - (Length - Place) / EndMargin * EndShare;
	}
	float Middle = Place - StartMargin;
	float Shares = 1.0 - StartShare - EndShare;
	return StartShare + (Repeat > 0.0 ? fract(Middle / Repeat) : Middle / (Length - StartMargin - EndMargin)) * Shares;
}

vec4 SamplePicture(vec2 Place, vec2 Size)
{
	vec2 Share;
	if (Has(Sliced))
	{
		bool bMiddleX = Place.x >= Corners.x && Place.x < Size.x - Corners.z;
		bool bMiddleY = Place.y >= Corners.y && Place.y < Size.y - Corners.w;
		if (Has(Frame) && bMiddleX && bMiddleY)
		{
			return vec4(0.0);
		}
		Share.x = SlicedShare(Place.x, Size.x, Corners.x, Corners.z, Texture.x, Texture.z, Numbers.z);
		Share.y = SlicedShare(Place.y, Size.y, Corners.y, Corners.w, Texture.y, Texture.w, Numbers.w);
	}
	else
	{
		Share = Texture.xy + Place / Size * (Texture.zw - Texture.xy);
	}
	if (Has(BottomUp))
	{
		Share.y = 1.0 - Share.y;
	}
	vec4 Texel = textureLod(Picture, Share, Numbers.y);
	if (Has(IgnoreAlpha))
	{
		Texel = vec4(Texel.a > 0.0 ? min(Texel.rgb / Texel.a, vec3(1.0)) : Texel.rgb, 1.0);
	}
	return Texel;
}

vec4 Box(vec2 Pixel)
{
	vec2 Size = ToLocalSize.zw;
	vec2 Place = LocalOf(Pixel);
	vec3 Edge = BoxDistance(Place, Size, Has(Sliced) ? vec4(0.0) : Corners);
	// Local units that the distance changes for a step of one pixel.
	float Step = length(vec2(Edge.y * ToLocal.x + Edge.z * ToLocal.w, Edge.y * ToLocal.y + Edge.z * ToLocalSize.x));
	float Outer = clamp(0.5 - Edge.x / Step, 0.0, 1.0);
	float Inner = clamp(0.5 - (Edge.x + Numbers.x) / Step, 0.0, 1.0);
	vec4 Fill = Unpack(Words.x);
	if (Has(Textured))
	{
		Fill *= SamplePicture(Place, Size);
	}
	return Fill * Inner + Unpack(Words.y) * (Outer - Inner);
}

float SampledGlyph(vec2 Pixel)
{
	vec2 Texel = (LocalOf(Pixel) - Corners.xy) * Corners.z;
	// Beyond half a texel around its own picture lie those of other glyphs.
	if (any(lessThanEqual(Texel, vec2(-0.5))) || any(greaterThanEqual(Texel, Texture.zw + 0.5)))
	{
		return 0.0;
	}
	return textureLod(Atlas, (Texture.xy + Texel) / vec2(textureSize(Atlas, 0)), 0.0).r;
}

float Line(vec2 Pixel)
{
	vec2 Direction = vec2(ToLocal.z, ToLocal.w);
	float Length = ToLocalSize.x;
	float HalfThickness = ToLocalSize.y;
	vec2 FromStart = Pixel - ToLocal.xy;
	vec2 FromEnd = FromStart - Direction * Length;
	if (Has(JoinedStart) && dot(FromStart, Corners.xy) < 0.0)
	{
		return 0.0;
	}
	if (Has(JoinedEnd) && dot(FromEnd, Corners.zw) >= 0.0)
	{
		return 0.0;
	}
	float Along = dot(FromStart, Direction);
	float Distance = abs(FromStart.x * Direction.y - FromStart.y * Direction.x);
	float Ends = 1.0;
	if (Along < 0.0 && Has(JoinedStart))
	{
		Distance = length(FromStart);
	}
	else if (Along > Length && Has(JoinedEnd))
	{
		Distance = length(FromEnd);
	}
	if (!Has(JoinedStart))
	{
		Ends *= clamp(Along + 0.5, 0.0, 1.0);
	}
	if (!Has(JoinedEnd))
	{
		Ends *= clamp(Length - Along + 0.5, 0.0, 1.0);
	}
	float Coverage = clamp(min(Distance + 0.5, HalfThickness) - max(Distance - 0.5, -HalfThickness), 0.0, 1.0) * Ends;
	return Has(Aliased) ? step(0.5, Coverage) : Coverage;
}

void main()
{
	vec2 Pixel = gl_FragCoord.xy;
	if (Words.z == 0u)
	{
		Result = Box(Pixel);
	}
	else if (Words.z == 1u)
	{
		Result = Unpack(Words.x) * texelFetch(Atlas, ivec2(Pixel + vec2(ToLocal.z, ToLocalSize.y)), 0).r;
	}
	else if (Words.z == 2u)
	{
		Result = Unpack(Words.x) * SampledGlyph(Pixel);
	}
	else
	{
		Result = Unpack(Words.x) * Line(Pixel);
	}
	Result *= ClipCoverage(Pixel);
}
)";
}
