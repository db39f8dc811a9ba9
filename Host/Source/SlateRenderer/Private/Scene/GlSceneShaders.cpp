#include "Scene/GlSceneShaders.h"

namespace Host::GlSceneShaders
{
	const ANSICHAR* const Frame = R"(#version 330 core
layout(std140) uniform Frame
{
	mat4 ViewProjection;
	// From places to texels of the map of shadows, as shares, and depth.
	mat4 ToSun;
	// From places to shares of the map of footprints: scale, then offset.
	vec4 ToFootprints;
	// The eye; W: height of the ground.
	vec4 Eye;
	// Direction through the middle of the picture, and what clip space adds to it.
	vec4 RayForward;
	vec4 RayRight;
	vec4 RayUp;
	// To the sun; W: taps of the shadow along an axis, 0 for no shadows.
	vec4 SunDirection;
	// W: size of a texel of the map of shadows in space.
	vec4 SunColour;
	vec4 SkyLight;
	vec4 GroundLight;
	vec4 Zenith;
	vec4 Horizon;
	vec4 GroundColour;
	// Middle of the ground; distances from it at which the haze begins and hides all.
	vec4 Haze;
	// Lines along edges: half their width in pixels, how much light they take, 1 for smooth ones.
	vec4 Edges;
};
)";

	const ANSICHAR* const Light = R"(
uniform sampler2DShadow ShadowMap;
uniform sampler2D Footprints;

float GetSunShare(vec3 Place, vec3 Normal)
{
	int Taps = int(SunDirection.w);
	if (Taps == 0)
	{
		return 1.0;
	}
	// Off the surface by more than a texel, so that it does not shade itself.
	vec3 Share = (ToSun * vec4(Place + Normal * SunColour.w * (1.0 + 0.6 * float(Taps)), 1.0)).xyz;
	vec2 Texel = 1.0 / vec2(textureSize(ShadowMap, 0));
	float First = -0.5 * float(Taps - 1);
	float Sum = 0.0;
	for (int Y = 0; Y < Taps; ++Y)
	{
		for (int X = 0; X < Taps; ++X)
		{
			Sum += texture(ShadowMap, vec3(Share.xy + (vec2(X, Y) + First) * Texel, Share.z));
		}
	}
	return Sum / float(Taps * Taps);
}

// How much of the sky is to be seen: less near where volumes stand on the ground.
float GetOpenness(vec3 Place, vec3 Normal)
{
	if (SunDirection.w == 0.0)
	{
		return 1.0;
	}
	vec2 Share = (Place.xy + Normal.xy * 80.0) * ToFootprints.xy + ToFootprints.zw;
	float Height = max(Place.z - Eye.w, 0.0);
	return 1.0 - 0.72 * texture(Footprints, Share).r * exp(-Height / 380.0);
}

vec3 GetLit(vec3 Albedo, vec3 Place, vec3 Normal)
{
	float Facing = dot(Normal, SunDirection.xyz);
	float Sun = Facing > 0.0 ? Facing * GetSunShare(Place, Normal) : 0.0;
	// Faces in the shade differ a little by where they look, as from light that the air scatters about the sun.
	vec3 Ambient = mix(GroundLight.rgb, SkyLight.rgb, 0.5 + 0.5 * Normal.z) * (0.9 + 0.1 * Facing) * GetOpenness(Place, Normal);
	return Albedo * (SunColour.rgb * Sun + Ambient);
}

vec3 GetHazed(vec3 Colour, vec3 Place)
{
	return mix(Colour, Horizon.rgb, smoothstep(Haze.z, Haze.w, distance(Place.xy, Haze.xy)));
}

// As it is shown: bright light fades into white instead of being cut off, then the sRGB curve.
vec3 GetShown(vec3 Colour)
{
	const float Shoulder = 0.75;
	vec3 Over = max(Colour - Shoulder, 0.0) / (1.0 - Shoulder);
	vec3 Soft = min(Colour, Shoulder) + (1.0 - Shoulder) * (1.0 - exp(-Over));
	vec3 Root = 1.055 * pow(max(Soft, 0.0), vec3(1.0 / 2.4)) - 0.055;
	return mix(12.92 * Soft, Root, step(0.0031308, Soft));
}

// Half a step of the last bit up or down, by a pattern that the eye does not find, so that gradients show no bands.
vec3 GetDithered(vec3 Shown)
{
	float Noise = fract(52.9829189 * fract(dot(gl_FragCoord.xy, vec2(0.06711056, 0.00583715))));
	return Shown + (Noise - 0.5) / 255.0;
}
)";

	const ANSICHAR* const VolumeVertex = R"(
layout(location = 0) in vec3 InPlace;
layout(location = 1) in vec3 InNormal;
layout(location = 2) in vec4 InEdges;
layout(location = 3) in vec4 InCentre;
layout(location = 4) in vec4 InExtent;
layout(location = 5) in uint InVolume;

uniform sampler2D Colours;
uniform sampler2D Roughnesses;
// 1 when not all volumes are as rough as can be.
uniform int AnySmooth;
// 0 draws what is solid, 1 what is seen through.
uniform int Pass;

out vec3 Place;
flat out vec3 Normal;
flat out vec4 Colour;
flat out float Gloss;
out vec4 EdgeDistances;

void main()
{
	ivec2 Texel = ivec2(InVolume & 1023u, InVolume >> 10u);
	Colour = texelFetch(Colours, Texel, 0);
	Gloss = AnySmooth == 1 ? 1.0 - texelFetch(Roughnesses, Texel, 0).r : 0.0;
	mat2 Turn = mat2(InCentre.w, InExtent.w, -InExtent.w, InCentre.w);
	vec3 Scaled = InPlace * InExtent.xyz;
	Place = vec3(Turn * Scaled.xy, Scaled.z) + InCentre.xyz;
	Normal = vec3(Turn * InNormal.xy, InNormal.z);
	EdgeDistances = InEdges;
	bool bWanted = Pass == 0 ? Colour.a == 1.0 : Colour.a > 0.0 && Colour.a < 1.0;
	// What is not wanted goes to where nothing is seen.
	gl_Position = bWanted ? ViewProjection * vec4(Place, 1.0) : vec4(2.0, 2.0, 2.0, 1.0);
}
)";

	const ANSICHAR* const VolumeFragment = R"(
in vec3 Place;
flat in vec3 Normal;
flat in vec4 Colour;
flat in float Gloss;
in vec4 EdgeDistances;
out vec4 Result;

// What a smooth surface mirrors, as varnish does: sky or ground, more of it at a flat angle (Schlick's approximation of Fresnel's
// law), and the sun as a spot that is the smaller and brighter the smoother the surface is (Blinn and Phong, normalised).
vec3 GetMirrored()
{
	vec3 ToEye = normalize(Eye.xyz - Place);
	vec3 Mirror = reflect(-ToEye, Normal);
	float Share = Gloss * Gloss * mix(0.04, 1.0, pow(1.0 - max(dot(Normal, ToEye), 0.0), 5.0));
	vec3 Around = mix(GroundLight.rgb, mix(Horizon.rgb, Zenith.rgb, max(Mirror.z, 0.0)), smoothstep(-0.1, 0.1, Mirror.z));
	float Power = exp2(9.0 * Gloss);
	float Spot = (Power + 8.0) / 25.0 * pow(max(dot(Normal, normalize(ToEye + SunDirection.xyz)), 0.0), Power);
	float Sun = dot(Normal, SunDirection.xyz) > 0.0 ? Spot * GetSunShare(Place, Normal) : 0.0;
	return Share * (Around + SunColour.rgb * Sun);
}

float GetLine()
{
	vec4 Across = dFdx(EdgeDistances);
	vec4 Down = dFdy(EdgeDistances);
	// What one pixel is on the way from an edge to the other side of the face.
	vec4 Step = max(sqrt(Across * Across + Down * Down), 1.0e-6);
	vec4 Pixels = EdgeDistances / Step;
	vec4 Cover = Edges.z > 0.0 ? clamp(Edges.x + 0.5 - Pixels, 0.0, 1.0) : step(Pixels, vec4(Edges.x));
	// Lines of small faces fade, which would otherwise be nothing but lines.
	Cover *= clamp((1.0 / Step - 4.0) / 12.0, 0.0, 1.0);
	return max(max(Cover.x, Cover.y), max(Cover.z, Cover.w));
}

void main()
{
	vec3 Lit = GetLit(Colour.rgb, Place, Normal);
	if (Gloss > 0.0)
	{
		Lit += GetMirrored();
	}
	float Line = GetLine() * Edges.y;
	Lit *= 1.0 - Line;
	float Alpha = mix(Colour.a, 0.5 + 0.5 * Colour.a, Line);
	Result = vec4(GetDithered(GetShown(GetHazed(Lit, Place))), Colour.a == 1.0 ? 1.0 : Alpha);
}
)";

	const ANSICHAR* const DepthFragment = R"(
void main()
{
}
)";

	const ANSICHAR* const FootprintFragment = R"(
flat in vec3 Normal;
out vec4 Result;

void main()
{
	// Whoever sees the inner side of a roof first is within the volume.
	Result = vec4(Normal.z > 0.5 ? 1.0 : 0.0);
}
)";

	const ANSICHAR* const GroundVertex = R"(
uniform float HalfSize;
out vec3 Place;

void main()
{
	vec2 Corner = vec2(gl_VertexID & 1, gl_VertexID >> 1) * 2.0 - 1.0;
	Place = vec3(Haze.xy + Corner * HalfSize, Eye.w);
	gl_Position = ViewProjection * vec4(Place, 1.0);
}
)";

	const ANSICHAR* const GroundFragment = R"(
in vec3 Place;
out vec4 Result;

void main()
{
	vec3 Lit = GetLit(GroundColour.rgb, Place, vec3(0.0, 0.0, 1.0));
	Result = vec4(GetDithered(GetShown(GetHazed(Lit, Place))), 1.0);
}
)";

	const ANSICHAR* const ScreenVertex = R"(
out vec2 Clip;

void main()
{
	Clip = vec2(gl_VertexID & 1, gl_VertexID >> 1) * 4.0 - 1.0;
	gl_Position = vec4(Clip, 1.0, 1.0);
}
)";

	const ANSICHAR* const SkyFragment = R"(
in vec2 Clip;
out vec4 Result;

void main()
{
	vec3 Ray = normalize(RayForward.xyz + RayRight.xyz * Clip.x + RayUp.xyz * Clip.y);
	float Height = clamp(Ray.z, 0.0, 1.0);
	vec3 Sky = mix(Horizon.rgb, Zenith.rgb, 1.0 - pow(1.0 - Height, 5.0));
	float Toward = max(dot(Ray, SunDirection.xyz), 0.0);
	// The air glows about the sun.
	Sky += SunColour.rgb * (0.10 * pow(Toward, 6.0) + 0.25 * pow(Toward, 48.0)) * smoothstep(-0.02, 0.10, Ray.z);
	Result = vec4(GetDithered(GetShown(Sky)), 1.0);
}
)";

	const ANSICHAR* const BlurFragment = R"(
in vec2 Clip;
uniform sampler2D Source;
// From tap to tap, as a share of the picture.
uniform vec2 Step;
out vec4 Result;

void main()
{
	const int Reach = 8;
	float Sum = 0.0;
	float Weights = 0.0;
	for (int Tap = -Reach; Tap <= Reach; ++Tap)
	{
		float Weight = exp(-float(Tap * Tap) / (0.35 * float(Reach * Reach)));
		Sum += Weight * texture(Source, Clip * 0.5 + 0.5 + Step * float(Tap)).r;
		Weights += Weight;
	}
	Result = vec4(Sum / Weights);
}
)";

	const ANSICHAR* const ScaleFragment = R"(
in vec2 Clip;
uniform sampler2D Source;
// Pixels of the source for one of the result.
uniform vec2 Ratio;
out vec4 Result;

// Cubic between four texels, which keeps edges crisper than linear (Catmull-Rom). The middle two are read as one.
vec3 GetEnlarged(vec2 Share)
{
	vec2 Size = vec2(textureSize(Source, 0));
	vec2 Texel = Share * Size;
	vec2 Base = floor(Texel - 0.5) + 0.5;
	vec2 T = Texel - Base;
	vec2 W0 = T * (-0.5 + T * (1.0 - 0.5 * T));
	vec2 W1 = 1.0 + T * T * (-2.5 + 1.5 * T);
	vec2 W2 = T * (0.5 + T * (2.0 - 1.5 * T));
	vec2 W3 = T * T * (-0.5 + 0.5 * T);
	vec2 Middle = W1 + W2;
	vec2 P[3] = vec2[3]((Base - 1.0) / Size, (Base + W2 / Middle) / Size, (Base + 2.0) / Size);
	vec2 W[3] = vec2[3](W0, Middle, W3);
	vec3 Sum = vec3(0.0);
	for (int Y = 0; Y < 3; ++Y)
	{
		for (int X = 0; X < 3; ++X)
		{
			Sum += texture(Source, vec2(P[X].x, P[Y].y)).rgb * W[X].x * W[Y].y;
		}
	}
	return clamp(Sum, 0.0, 1.0);
}

// The mean of what one pixel covers: each of four taps is the mean of up to four texels.
vec3 GetReduced(vec2 Share)
{
	vec2 Quarter = 0.25 * Ratio / vec2(textureSize(Source, 0));
	vec3 Sum = texture(Source, Share - Quarter).rgb + texture(Source, Share + Quarter).rgb;
	Quarter.x = -Quarter.x;
	return 0.25 * (Sum + texture(Source, Share - Quarter).rgb + texture(Source, Share + Quarter).rgb);
}

void main()
{
	vec2 Share = Clip * 0.5 + 0.5;
	Result = vec4(Ratio.x > 1.0 ? GetReduced(Share) : GetEnlarged(Share), 1.0);
}
)";
}
