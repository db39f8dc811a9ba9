#include "Scalability.h"

#include "HAL/IConsoleManager.h"
#include "Host/ConfigFiles.h"
#include "Host/RankedSet.h"
#include "Logging/LogMacros.h"
#include "Misc/ConfigCacheIni.h"

namespace
{
	using Scalability::FQualityLevels;

	const TCHAR* const SectionName = TEXT("ScalabilityGroups");

	const TCHAR* const ScreenPercentageName = TEXT("r.ScreenPercentage");

	/** Looked up by its name wherever it counts: it may be taken away, as no other value of the console. */
	[[maybe_unused]] const IConsoleVariable* const ScreenPercentage = IConsoleManager::Get().RegisterConsoleVariable(ScreenPercentageName, 0.0f,
		TEXT("Pixels of the picture that a scene is drawn in, in percent of the window's along an axis. 0: as the project says."));

	constexpr uint32 GroupFlags = ECVF_ScalabilityGroup;

	TAutoConsoleVariable<float> ResolutionQuality(TEXT("sg.ResolutionQuality"), Scalability::MaxResolutionScale,
		TEXT("Resolution of scenes in percent, 0 to 100; sets r.ScreenPercentage."), GroupFlags);
	TAutoConsoleVariable<int32> ViewDistanceQuality(TEXT("sg.ViewDistanceQuality"), Scalability::DefaultQualityLevel,
		TEXT("How far one sees: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic."), GroupFlags);
	TAutoConsoleVariable<int32> AntiAliasingQuality(TEXT("sg.AntiAliasingQuality"), Scalability::DefaultQualityLevel,
		TEXT("How smooth edges are: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic."), GroupFlags);
	TAutoConsoleVariable<int32> ShadowQuality(TEXT("sg.ShadowQuality"), Scalability::DefaultQualityLevel,
		TEXT("Sharpness and reach of shadows: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic."), GroupFlags);
	TAutoConsoleVariable<int32> GlobalIlluminationQuality(TEXT("sg.GlobalIlluminationQuality"), Scalability::DefaultQualityLevel,
		TEXT("Light from lit surfaces: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic."), GroupFlags);
	TAutoConsoleVariable<int32> ReflectionQuality(TEXT("sg.ReflectionQuality"), Scalability::DefaultQualityLevel,
		TEXT("Mirroring of the surroundings: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic."), GroupFlags);
	TAutoConsoleVariable<int32> PostProcessQuality(TEXT("sg.PostProcessQuality"), Scalability::DefaultQualityLevel,
		TEXT("Effects over the finished picture: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic."), GroupFlags);
	TAutoConsoleVariable<int32> TextureQuality(TEXT("sg.TextureQuality"), Scalability::DefaultQualityLevel,
		TEXT("Detail of textures: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic."), GroupFlags);
	TAutoConsoleVariable<int32> EffectsQuality(TEXT("sg.EffectsQuality"), Scalability::DefaultQualityLevel,
		TEXT("Visual effects: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic."), GroupFlags);
	TAutoConsoleVariable<int32> FoliageQuality(TEXT("sg.FoliageQuality"), Scalability::DefaultQualityLevel,
		TEXT("Density of plants: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic."), GroupFlags);
	TAutoConsoleVariable<int32> ShadingQuality(TEXT("sg.ShadingQuality"), Scalability::DefaultQualityLevel,
		TEXT("Detail of surfaces: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic."), GroupFlags);

	/** A group: its key in files, its variable, its place in the record. */
	struct FGroup
	{
		const TCHAR* Name;
		TAutoConsoleVariable<int32>& Variable;
		int32 FQualityLevels::* Level;
	};

	const FGroup Groups[] =
	{
		{ TEXT("sg.ViewDistanceQuality"), ViewDistanceQuality, &FQualityLevels::ViewDistanceQuality },
		{ TEXT("sg.AntiAliasingQuality"), AntiAliasingQuality, &FQualityLevels::AntiAliasingQuality },
		{ TEXT("sg.ShadowQuality"), ShadowQuality, &FQualityLevels::ShadowQuality },
		{ TEXT("sg.GlobalIlluminationQuality"), GlobalIlluminationQuality, &FQualityLevels::GlobalIlluminationQuality },
		{ TEXT("sg.ReflectionQuality"), ReflectionQuality, &FQualityLevels::ReflectionQuality },
		{ TEXT("sg.PostProcessQuality"), PostProcessQuality, &FQualityLevels::PostProcessQuality },
		{ TEXT("sg.TextureQuality"), TextureQuality, &FQualityLevels::TextureQuality },
		{ TEXT("sg.EffectsQuality"), EffectsQuality, &FQualityLevels::EffectsQuality },
		{ TEXT("sg.FoliageQuality"), FoliageQuality, &FQualityLevels::FoliageQuality },
		{ TEXT("sg.ShadingQuality"), ShadingQuality, &FQualityLevels::ShadingQuality },
	};
	const TCHAR* const ResolutionName = TEXT("sg.ResolutionQuality");

	int32 ClampLevel(int32 Level)
	{
		return FMath::Clamp(Level, Scalability::LowestQualityLevel, Scalability::HighestQualityLevel);
	}

	float ClampScale(float Scale)
	{
		return FMath::Clamp(Scale, Scalability::MinResolutionScale, Scalability::MaxResolutionScale);
	}

	void ReportRange(const FString& IniName, const TCHAR* Name, const FString& Found, float Highest, const FString& Used)
	{
		UE_CLOG(Host::FConfigFiles::IsFirstReport(IniName, SectionName, Name, Found), LogCore, Warning, TEXT("%s: [%s] %s: expected 0 to %g, found %s; %s is used"), *IniName, SectionName, Name, double(Highest), *Found, *Used);
	}
}

void Scalability::FQualityLevels::SetFromSingleQualityLevel(int32 Value)
{
	for (const FGroup& Group : Groups)
	{
		this->*Group.Level = ClampLevel(Value);
	}
}

int32 Scalability::FQualityLevels::GetSingleQualityLevel() const
{
	for (const FGroup& Group : Groups)
	{
		if (this->*Group.Level != ViewDistanceQuality)
		{
			return -1;
		}
	}
	return ViewDistanceQuality;
}

void Scalability::FQualityLevels::Clamp()
{
	ResolutionQuality = ClampScale(ResolutionQuality);
	for (const FGroup& Group : Groups)
	{
		this->*Group.Level = ClampLevel(this->*Group.Level);
	}
}

Scalability::FQualityLevels Scalability::GetQualityLevels()
{
	FQualityLevels Levels;
	Levels.ResolutionQuality = ResolutionQuality.GetValueOnGameThread();
	for (const FGroup& Group : Groups)
	{
		Levels.*Group.Level = Group.Variable.GetValueOnGameThread();
	}
	Levels.Clamp();
	return Levels;
}

void Scalability::SetQualityLevels(const FQualityLevels& QualityLevels)
{
	FQualityLevels Levels = QualityLevels;
	Levels.Clamp();
	for (const FGroup& Group : Groups)
	{
		Group.Variable->SetWithCurrentPriority(*FString::FromInt(Levels.*Group.Level));
	}
	const FString Percentage = FString::SanitizeFloat(Levels.ResolutionQuality);
	ResolutionQuality->SetWithCurrentPriority(*Percentage);
	if (IConsoleVariable* const Drawn = IConsoleManager::Get().FindConsoleVariable(ScreenPercentageName))
	{
		Host::SetUnlessOutranked(*Drawn, *Percentage, ECVF_SetByScalability);
	}
}

void Scalability::LoadState(const FString& IniName, FQualityLevels& InOutLevels)
{
	for (const FGroup& Group : Groups)
	{
		int32 Found = InOutLevels.*Group.Level;
		GConfig->GetInt(SectionName, Group.Name, Found, IniName);
		InOutLevels.*Group.Level = ClampLevel(Found);
		if (Found != ClampLevel(Found))
		{
			ReportRange(IniName, Group.Name, FString::FromInt(Found), float(HighestQualityLevel), FString::FromInt(ClampLevel(Found)));
		}
	}
	float Found = InOutLevels.ResolutionQuality;
	GConfig->GetFloat(SectionName, ResolutionName, Found, IniName);
	InOutLevels.ResolutionQuality = ClampScale(Found);
	if (Found != ClampScale(Found))
	{
		ReportRange(IniName, ResolutionName, FString::SanitizeFloat(Found), MaxResolutionScale, FString::SanitizeFloat(ClampScale(Found)));
	}
}

void Scalability::SaveState(const FString& IniName, const FQualityLevels& Levels)
{
	GConfig->SetFloat(SectionName, ResolutionName, Levels.ResolutionQuality, IniName);
	for (const FGroup& Group : Groups)
	{
		GConfig->SetInt(SectionName, Group.Name, Levels.*Group.Level, IniName);
	}
}
