#pragma once

#include "KitTest.h"

#include "Configurator/HalvexConfiguratorDataAsset.h"
#include "ConfiguratorRecorder.h"
#include "TemporaryContent.h"

class AHalvexLevelVariantSetsActor;
class UHalvexVariantHandler;
class UUserWidget;

/** The kit's configurator panels over a level that can be configured. */
class FConfiguratorSceneTest : public FKitTest
{
protected:
	virtual void SetUp() override;
	virtual void TearDown() override;

	/** Gives the level an actor, without a handler yet. */
	void MakeLevel();

	/** Gives the actor the test catalogue, and so a handler. */
	void MakeHandler();
	void MakeHandler(const FConfiguratorCatalogue& Catalogue);

	/** A level with a handler of the test catalogue. */
	void MakeScene()
	{
		MakeLevel();
		MakeHandler();
	}

	/** Makes a widget of the blueprint /KitScreens/Name and shows it at the top left. */
	UUserWidget* ShowPanel(const TCHAR* Name);

	/** Value of a blueprint's variable, as text. */
	static std::string Read(const UObject& Object, const TCHAR* Variable);

	/** The text variable Story of a blueprint, which begins anew. */
	static std::string TakeStory(UObject& Object);

	bool Choose(const TCHAR* Variant);

	Host::FTemporaryContent Content{ TEXT("/KitScreens/") };
	AHalvexLevelVariantSetsActor* Actor = nullptr;
	UHalvexVariantHandler* Handler = nullptr;
	TStrongObjectPtr<UHalvexConfiguratorDataAsset> Asset;
	TStrongObjectPtr<UConfiguratorRecorder> ConfiguratorRecorder;
};
