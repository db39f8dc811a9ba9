#include "UnitSceneTest.h"

#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/World.h"
#include "Filters/UnitsFilterManager.h"
#include "UObject/UnrealType.h"
#include "UnitVolumes/UnitVolumeActor.h"

void FUnitSceneTest::TearDown()
{
	FKitTest::TearDown();
	if (Manager)
	{
		Manager->SpawnUnits(TArray<FProjectUnit>());
		Manager->Destroy();
	}
	SceneRecorder.Reset();
}

void FUnitSceneTest::MakeScene()
{
	Manager = GEngine->GetGameInstance()->GetWorld()->SpawnActor<AUnitVolumesManager>();
	Filters = Manager->GetUnitFilterManager();
	SceneRecorder.Reset(NewObject<USceneRecorder>());
	SceneRecorder->ListenTo(*Manager);
}

void FUnitSceneTest::SpawnUnits(TConstArrayView<const TCHAR*> Names)
{
	TArray<FProjectUnit> Units;
	for (const TCHAR* Name : Names)
	{
		FProjectUnit& Unit = Units.AddDefaulted_GetRef();
		Unit.Data.UnitId = FName(Name);
		Unit.Data.Name = Name;
		Unit.Data.Level = Units.Num() - 1;
		Unit.Volume = FUnitVolumeShape::MakeBox(FVector::ZeroVector, FVector(100.0, 200.0, 300.0));
	}
	Manager->SpawnUnits(Units);
	Settle();
	Heard();
}

AUnitVolumeActor& FUnitSceneTest::GetUnit(const TCHAR* Name) const
{
	AUnitVolumeActor* const Found = Manager->FindUnitVolume(FName(Name));
	check(Found);
	return *Found;
}

UUserWidget* FUnitSceneTest::ShowPanel(const TCHAR* Name, FVector2D Size)
{
	UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/KitScreens/%s.%s_C"), Name, Name));
	UUserWidget* Panel = CreateWidget<UUserWidget>(Screen->WidgetTree, Class);
	Place(*Panel, 0.0, 0.0, Size);
	Show();
	return Panel;
}

std::string FUnitSceneTest::Read(const UObject& Object, const TCHAR* Variable)
{
	const FProperty* Property = Object.GetClass()->FindPropertyByName(FName(Variable));
	check(Property);
	FString Text;
	Property->ExportTextItem_Direct(Text, Property->ContainerPtrToValuePtr<void>(&Object), nullptr, nullptr, PPF_None);
	return Host::ToStd(Text);
}
