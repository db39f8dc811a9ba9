#include "ConfiguratorSceneTest.h"

#include "Blueprint/UserWidget.h"
#include "Configurator/HalvexLevelVariantSetsActor.h"
#include "Configurator/HalvexVariantHandler.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/World.h"
#include "TestCatalogue.h"
#include "UObject/UnrealType.h"

void FConfiguratorSceneTest::SetUp()
{
	FKitTest::SetUp();
	ConfiguratorRecorder.Reset(NewObject<UConfiguratorRecorder>());
}

void FConfiguratorSceneTest::TearDown()
{
	FKitTest::TearDown();
	if (Actor)
	{
		Actor->Destroy();
	}
	Asset.Reset();
	ConfiguratorRecorder.Reset();
}

void FConfiguratorSceneTest::MakeLevel()
{
	Actor = GEngine->GetGameInstance()->GetWorld()->SpawnActor<AHalvexLevelVariantSetsActor>();
}

void FConfiguratorSceneTest::MakeHandler()
{
	MakeHandler(Host::TestCatalogue::Make());
}

void FConfiguratorSceneTest::MakeHandler(const FConfiguratorCatalogue& Catalogue)
{
	Asset.Reset(UHalvexConfiguratorDataAsset::CreateFromCatalogue(Catalogue, {}));
	Actor->SetCatalogue(Asset.Get());
	Handler = Actor->GetVariantHandler();
}

UUserWidget* FConfiguratorSceneTest::ShowPanel(const TCHAR* Name)
{
	UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/KitScreens/%s.%s_C"), Name, Name));
	UUserWidget* Panel = CreateWidget<UUserWidget>(Screen->WidgetTree, Class);
	Place(*Panel, 0.0, 0.0, FVector2D(300.0, 400.0));
	Show();
	return Panel;
}

std::string FConfiguratorSceneTest::Read(const UObject& Object, const TCHAR* Variable)
{
	const FProperty* Property = Object.GetClass()->FindPropertyByName(FName(Variable));
	check(Property);
	FString Text;
	Property->ExportTextItem_Direct(Text, Property->ContainerPtrToValuePtr<void>(&Object), nullptr, nullptr, PPF_None);
	return Host::ToStd(Text);
}

std::string FConfiguratorSceneTest::TakeStory(UObject& Object)
{
	const FStrProperty* Property = CastFieldChecked<FStrProperty>(Object.GetClass()->FindPropertyByName(FName(TEXT("Story"))));
	const std::string Story = Host::ToStd(Property->GetPropertyValue_InContainer(&Object));
	Property->SetPropertyValue_InContainer(&Object, FString());
	return Story;
}

bool FConfiguratorSceneTest::Choose(const TCHAR* Variant)
{
	return Handler->SetVariant(FName(Variant), true);
}
