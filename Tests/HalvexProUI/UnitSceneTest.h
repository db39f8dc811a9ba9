#pragma once

#include "KitTest.h"

#include "SceneRecorder.h"
#include "TemporaryContent.h"
#include "UnitVolumes/UnitVolumesManager.h"

class AUnitVolumeActor;
class UUnitsFilterManager;

/** The kit's panels over a scene with units, in the world that the screens are in. */
class FUnitSceneTest : public FKitTest
{
protected:
	virtual void TearDown() override;

	/** Gives the world a manager of units. */
	void MakeScene();

	/** Spawns units of these names on levels 0, 1, 2 ... */
	void SpawnUnits(TConstArrayView<const TCHAR*> Names);

	AUnitVolumeActor& GetUnit(const TCHAR* Name) const;

	/** Makes a widget of the blueprint /KitScreens/Name and shows it at the top left, as large as said. */
	UUserWidget* ShowPanel(const TCHAR* Name, FVector2D Size = FVector2D(300.0, 400.0));

	/** Value of a blueprint's variable, as text. */
	static std::string Read(const UObject& Object, const TCHAR* Variable);

	/** What the scene told since the last call. */
	std::string Heard() { return Host::ToStd(SceneRecorder->Take()); }

	Host::FTemporaryContent Content{ TEXT("/KitScreens/") };
	AUnitVolumesManager* Manager = nullptr;
	UUnitsFilterManager* Filters = nullptr;
	TStrongObjectPtr<USceneRecorder> SceneRecorder;
};
