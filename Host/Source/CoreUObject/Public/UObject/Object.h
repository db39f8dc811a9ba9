#pragma once

#include "UObject/UObjectBaseUtility.h"

class FObjectInitializer;
class FProperty;
class FReferenceCollector;
class UFunction;
class UWorld;
struct FPropertyChangedChainEvent;
struct FPropertyChangedEvent;

/** How UObject::Rename goes about it. */
enum ERenameFlags : uint32
{
	REN_None = 0x0000,
	/** Engine content: keeps no trace of the old name, which the host never does. */
	REN_DontCreateRedirectors = 0x0010,
	/** Only asks whether the name is free. */
	REN_Test = 0x0020,
	/** Leaves undo alone. */
	REN_NonTransactional = 0x0040,
};
ENUM_CLASS_FLAGS(ERenameFlags)

/** Base of all reflected classes. */
class COREUOBJECT_API UObject : public UObjectBaseUtility
{
public:
	using ThisClass = UObject;
	using WithinClass = UObject;

	/** The class of UObject itself; defined with the other classes that describe reflection. */
	static UClass* StaticClass();
	static const TCHAR* StaticPackage() { return TEXT("/Script/CoreUObject"); }

	UObject();
	UObject(const FObjectInitializer& ObjectInitializer);

	/** Runs the constructor of UObject in memory that an object initialiser has claimed. */
	static void __DefaultConstructor(const FObjectInitializer& X);

protected:
	/** For objects that describe native code; UObjectBase::Register() completes them. */
	UObject(EStaticConstructor, EObjectFlags InFlags);

public:
	/** Tells the collector what reflection cannot see; a class declares its own static function of this name and calls Super's. */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	/**
	 * Makes a sub-object of the object under construction; in constructors only. A derived class may have replaced the class
	 * through FObjectInitializer::SetDefaultSubobjectClass. bTransient leaves the sub-object out of copies.
	 */
	UObject* CreateDefaultSubobject(FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient);

	template<typename TReturnType>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		UClass* ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(SubobjectName, ReturnType, ReturnType, true, bTransient));
	}

	template<typename TReturnType, typename TClassToConstructByDefault>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return static_cast<TReturnType*>(CreateDefaultSubobject(
			SubobjectName, TReturnType::StaticClass(), TClassToConstructByDefault::StaticClass(), true, bTransient));
	}

	/** As CreateDefaultSubobject, but null when a derived class asked for no such sub-object. */
	template<typename TReturnType>
	TReturnType* CreateOptionalDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		UClass* ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(SubobjectName, ReturnType, ReturnType, false, bTransient));
	}

	/** Sub-object of that name that the constructor made, or null. */
	UObject* GetDefaultSubobjectByName(FName ToFind);

	/** True for what CreateDefaultSubobject made. */
	bool IsDefaultSubobject() const { return HasAnyFlags(RF_DefaultSubObject); }

	/** After the constructor, with the template's and the configured values in place. */
	virtual void PostInitProperties() {}

	/** After the constructor of a class default object ran, before it is configured. */
	virtual void PostCDOContruct() {}

	/** After the object's values were read from an asset. */
	virtual void PostLoad() {}

	/** After the object was made as the copy of another. */
	virtual void PostDuplicate(bool bDuplicateForPIE) { (void)bDuplicateForPIE; }

	/** After a rename. */
	virtual void PostRename(UObject* OldOuter, const FName OldName)
	{
		(void)OldOuter;
		(void)OldName;
	}

	/** Called once by the collector before the object goes; the references are still intact. An override calls Super's last. */
	virtual void BeginDestroy();

	/** False as long as the object's work elsewhere is unfinished; the collector asks again after the next collection. */
	virtual bool IsReadyForFinishDestroy() { return true; }

	/** Called once, right before the destructor. An override calls Super's last. */
	virtual void FinishDestroy();

	/** The world that the object lives in; the outer knows it, null when there is none. */
	virtual UWorld* GetWorld() const;

	/** Whether the object counts as an asset of its package. */
	virtual bool IsAsset() const;

#if WITH_EDITOR
	/** One of the object's properties is about to be edited. */
	virtual void PreEditChange(FProperty* PropertyAboutToChange) { (void)PropertyAboutToChange; }

	/** One of the object's properties was edited; the event's property is null for a bulk change. */
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);

	/** As PostEditChangeProperty with the whole way from the object's member to the edited value; goes on to that function. */
	virtual void PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent);

	/** Announces a change of unknown extent. */
	void PostEditChange();

	/** Whether the property may be edited now; classes answer for what EditCondition cannot say. */
	virtual bool CanEditChange(const FProperty* InProperty) const;
#endif

	/** The function of that name, own or inherited; null when there is none. */
	UFunction* FindFunction(FName InName) const;

	/** As FindFunction; asserts that there is one. */
	UFunction* FindFunctionChecked(FName InName) const;

	/** Calls a reflected function, native or made at run time. Parms holds parameters and result as the function lays them out. */
	virtual void ProcessEvent(UFunction* Function, void* Parms);

	/** Reads the properties marked Config from the class's configuration, or those of ConfigClass; see UClass for the file. */
	void LoadConfig(UClass* ConfigClass = nullptr, const TCHAR* Filename = nullptr);

	/** As LoadConfig, with the PostReloadConfig notification of each property that was read. */
	void ReloadConfig(UClass* ConfigClass = nullptr, const TCHAR* Filename = nullptr);

	/**
	 * Writes the properties marked Config to the user's file of the class's configuration, or to Filename, but for values that
	 * the lower configuration layers give already, which a class marked ConfigDoNotCheckDefaults writes too. A class marked
	 * DefaultConfig writes to the project's file instead.
	 */
	void SaveConfig(uint64 Flags = CPF_Config, const TCHAR* Filename = nullptr);

	/** Writes the properties marked Config to the project's default file of the class's configuration. False when it cannot be written. */
	bool TryUpdateDefaultConfigFile(const FString& SpecificFileLocation = FString());

	/** After a configured property was read again. */
	virtual void PostReloadConfig(FProperty* PropertyThatWasLoaded) { (void)PropertyThatWasLoaded; }

	/**
	 * Gives the object another name or outer; null keeps the one it has, a null name with a new outer keeps the name when that
	 * is free there and makes a unique one otherwise. False, with an error in the log, when the name is taken.
	 */
	virtual bool Rename(const TCHAR* NewName = nullptr, UObject* NewOuter = nullptr, ERenameFlags Flags = REN_None);

	/** The object that this one was made after: the template's counterpart for a sub-object, otherwise the class default object. */
	UObject* GetArchetype() const;

	/** Runs PostLoad if it is still due. */
	void ConditionalPostLoad();

	/** Runs BeginDestroy unless it ran already; false when it did. */
	bool ConditionalBeginDestroy();

	/** Runs FinishDestroy unless it ran already; false when it did. */
	bool ConditionalFinishDestroy();
};

/** Non-null and not declared dead: safe to use. */
FORCEINLINE bool IsValid(const UObject* Test)
{
	return Test && !Test->HasAnyFlags(RF_MirroredGarbage);
}

// Every reflected class can declare and hold dynamic delegates.
#include "UObject/DynamicDelegates.h"
// And every one may have a constructor that takes an object initialiser.
#include "UObject/UObjectGlobals.h"
