#pragma once

#include "Engine/World.h"
#include "GameFramework/Actor.h"

/**
 * Visits the actors of a world that are of class T, or of one derived from it and from InClass.
 * Actors spawned on the way are not met, those destroyed on the way are passed over.
 */
template <typename T>
class TActorIterator
{
public:
	explicit TActorIterator(const UWorld* InWorld, TSubclassOf<T> InClass = T::StaticClass())
	{
		if (InWorld && InClass)
		{
			InWorld->GetActorsOfClass(InClass, Actors);
		}
		StepToLiving();
	}

	explicit operator bool() const { return Index < Actors.Num(); }
	T* operator*() const { return static_cast<T*>(Actors[Index]); }
	T* operator->() const { return **this; }

	TActorIterator& operator++()
	{
		++Index;
		StepToLiving();
		return *this;
	}

private:
	void StepToLiving()
	{
		while (Index < Actors.Num() && Actors[Index]->IsActorBeingDestroyed())
		{
			++Index;
		}
	}

	TArray<AActor*> Actors;
	int32 Index = 0;
};
