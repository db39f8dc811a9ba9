#include "UnitFiltersScreenTest.h"

#include "Components/EditableTextBox.h"
#include "Components/ListView.h"
#include "Components/TextBlock.h"
#include "Components/WrapBox.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "Project/ProjectReader.h"
#include "ProjectStyle.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UserWidget/Exteriors/HxExteriorUnitListObject.h"
#include "Widgets/SWindow.h"

namespace
{
	const TCHAR* const Folders[] = { TEXT("Filters"), TEXT("Shared"), TEXT("FilterTest") };

	void EmptyUserFolder()
	{
		for (const TCHAR* Folder : Folders)
		{
			IFileManager::Get().DeleteDirectory(*(FPaths::ProjectSavedDir() / Folder), false, true);
		}
	}
}

void FUnitFiltersScreenTest::SetUp()
{
	FUnitSceneTest::SetUp();
	EmptyUserFolder();
	Loop.GetWindow()->Resize(FVector2D(1280.0, 800.0));
	MakeScene();
}

void FUnitFiltersScreenTest::TearDown()
{
	if (Units)
	{
		Units->RemoveFromParent();
	}
	FUnitSceneTest::TearDown();
	UseShippedStyle(TEXT("UIStyle_Hx_Light"));
	Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
	EmptyUserFolder();
}

void FUnitFiltersScreenTest::ShowScreen()
{
	UClass* Class = LoadObject<UClass>(nullptr, TEXT("/HalvexPro/Screens/Units.Units_C"));
	Units = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class);
	Units->AddToViewport();
	FProjectData Project;
	ASSERT_TRUE(FProjectReader::LoadFolder(FString(HALVEX_SOURCE_DIR) + TEXT("/Viewer/Projects/Quayside"), Project));
	Manager->SetUnitGroups(Project.Groups);
	Manager->SpawnUnits(Project.Units);
	Settle();
	Driver.Wait(1.0);
}

void FUnitFiltersScreenTest::ShowScreenAgain()
{
	Units->RemoveFromParent();
	Manager->SpawnUnits(TArray<FProjectUnit>());
	Manager->Destroy();
	MakeScene();
	ShowScreen();
	Click(TEXT("FiltersButton"));
}

void FUnitFiltersScreenTest::ShowFilters()
{
	ShowScreen();
	Click(TEXT("FiltersButton"));
}

void FUnitFiltersScreenTest::ShowStore()
{
	Click(TEXT("OpenStore"));
}

void FUnitFiltersScreenTest::Click(const TCHAR* Locator)
{
	ASSERT_TRUE(Driver.Click(Locator)) << Host::ToStd(Driver.GetError());
}

void FUnitFiltersScreenTest::Check(const TCHAR* Locator)
{
	ASSERT_TRUE(Driver.Focus(Locator)) << Host::ToStd(Driver.GetError());
	Driver.PressKey(EKeys::SpaceBar);
}

void FUnitFiltersScreenTest::Enter(const TCHAR* Field, const TCHAR* Text)
{
	Click(Field);
	Driver.PressKey(EKeys::A, TEXT("Ctrl"));
	Driver.Type(Text);
	Driver.PressKey(EKeys::Enter);
}

std::string FUnitFiltersScreenTest::GetText(const TCHAR* Locator) const
{
	const UWidget* const Widget = Driver.Find(Locator);
	if (const UEditableTextBox* const Box = Cast<UEditableTextBox>(Widget))
	{
		return Host::ToStd(Box->GetText());
	}
	const UTextBlock* const Text = Cast<UTextBlock>(Widget);
	return Text ? Host::ToStd(Text->GetText()) : "(not shown)";
}

std::string FUnitFiltersScreenTest::GetChips(const TCHAR* Box) const
{
	std::string Chips;
	const FString Locator = FString(Box) + TEXT("/Label");
	for (int32 Index = 1; Index <= Driver.Count(Locator); ++Index)
	{
		Chips += (Index > 1 ? "|" : "") + GetText(*FString::Printf(TEXT("%s#%d"), *Locator, Index));
	}
	return Chips;
}

TArray<FUnitData> FUnitFiltersScreenTest::GetListed() const
{
	TArray<FUnitData> Listed;
	for (const UObject* Item : CastChecked<UListView>(Driver.Find(TEXT("ListViewContainer")))->GetListItems())
	{
		Listed.Add(CastChecked<UHxExteriorUnitListObject>(Item)->UnitVolumeActorRef->GetUnitData());
	}
	return Listed;
}

int32 FUnitFiltersScreenTest::CountUnits(TFunctionRef<bool(const FUnitData&)> Fits) const
{
	int32 Count = 0;
	for (const FUnitData& Unit : Manager->GetUnitData())
	{
		Count += Fits(Unit) ? 1 : 0;
	}
	return Count;
}

std::string FUnitFiltersScreenTest::Describe(TFunctionRef<bool(const FUnitData&)> Fits) const
{
	return std::to_string(CountUnits(Fits)) + " of 262 units";
}

FString FUnitFiltersScreenTest::GetPath(const TCHAR* Name) const
{
	return FPaths::ConvertRelativePathToFull(FPaths::ProjectSavedDir() / TEXT("FilterTest") / Name);
}
