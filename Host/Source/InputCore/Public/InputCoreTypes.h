#pragma once

#include "CoreMinimal.h"
#include "Host/KeyList.h"
#include "UObject/ObjectMacros.h"
#include "InputCoreTypes.generated.h"

/** A key, a mouse button or a wheel, by name. */
USTRUCT(BlueprintType)
struct INPUTCORE_API FKey
{
	GENERATED_BODY()

	FKey() = default;
	FKey(const FName InName) : KeyName(InName) {}
	FKey(const TCHAR* InName) : KeyName(FName(InName)) {}

	/** True when a key of this name exists. */
	bool IsValid() const;
	bool IsModifierKey() const;
	bool IsMouseButton() const;
	/** True for what has a value along a line, such as the wheel, rather than being up or down. */
	bool IsAxis1D() const;

	FString ToString() const { return KeyName.ToString(); }
	FName GetFName() const { return KeyName; }
	/** The name for people; of an unknown key its plain name. */
	FText GetDisplayName(bool bLongDisplayName = true) const;

	friend bool operator==(const FKey& A, const FKey& B) { return A.KeyName == B.KeyName; }
	friend bool operator!=(const FKey& A, const FKey& B) { return A.KeyName != B.KeyName; }
	friend bool operator<(const FKey& A, const FKey& B) { return A.KeyName.LexicalLess(B.KeyName); }
	friend uint32 GetTypeHash(const FKey& Key) { return GetTypeHash(Key.KeyName); }

private:
	UPROPERTY(EditAnywhere, Category = "Input", meta = (AllowPrivateAccess = "true"))
	FName KeyName;
};

/** The keys that exist. */
struct INPUTCORE_API EKeys
{
#define HOST_DECLARE_KEY(Name, DisplayName, Kind) static const FKey Name;
	HOST_FOR_EACH_KEY(HOST_DECLARE_KEY)
#undef HOST_DECLARE_KEY

	/** No key. */
	static const FKey Invalid;

	static void GetAllKeys(TArray<FKey>& OutKeys);
};
