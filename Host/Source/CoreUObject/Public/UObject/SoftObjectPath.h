#pragma once

#include "CoreMinimal.h"

class UClass;
class UObject;

/**
 * Path of an object that may or may not be loaded: "/Mount/Dir/Asset.Asset", with ":Inner.Deeper" for an object inside the
 * asset. A path without an asset name is taken as it is.
 */
struct COREUOBJECT_API FSoftObjectPath
{
	FSoftObjectPath() = default;
	FSoftObjectPath(TYPE_OF_NULLPTR) {}
	FSoftObjectPath(const TCHAR* Path) { SetPath(Path); }
	FSoftObjectPath(const FString& Path) { SetPath(Path); }
	explicit FSoftObjectPath(const FStringView& Path) { SetPath(FString(Path)); }
	explicit FSoftObjectPath(FName Path) { SetPath(Path.ToString()); }
	/** Path of an object. */
	FSoftObjectPath(const UObject* InObject);

	/** "Class'/Mount/Dir/Asset.Asset'" loses its class; "None" and the empty text make the path null. */
	void SetPath(const FString& Path);
	void Reset() { *this = FSoftObjectPath(); }

	/** The whole path; empty when null. */
	FString ToString() const;
	/** "/Mount/Dir/Asset". */
	FString GetLongPackageName() const;
	FName GetLongPackageFName() const;
	/** "Asset". */
	FString GetAssetName() const;
	FName GetAssetFName() const { return AssetName; }
	/** "/Mount/Dir/Asset.Asset" without what follows. */
	FString GetAssetPathString() const;
	/** What follows the colon. */
	const FString& GetSubPathString() const { return SubPath; }

	bool IsNull() const { return PackageName.IsNone(); }
	bool IsValid() const { return !IsNull(); }
	/** True when the path names an asset, not an object inside one. */
	bool IsAsset() const { return IsValid() && SubPath.IsEmpty(); }
	bool IsSubobject() const { return IsValid() && !SubPath.IsEmpty(); }

	/** The object if it is loaded; null otherwise. */
	UObject* ResolveObject() const;
	/** The object, loaded when needed. Null for a null path, silently, and for a failed load, with a line in the log. */
	UObject* TryLoad() const;

	bool operator==(const FSoftObjectPath& Other) const
	{
		return PackageName == Other.PackageName && AssetName == Other.AssetName && SubPath == Other.SubPath;
	}

	friend uint32 GetTypeHash(const FSoftObjectPath& Path)
	{
		return HashCombine(HashCombine(GetTypeHash(Path.PackageName), GetTypeHash(Path.AssetName)), GetTypeHash(Path.SubPath));
	}

private:
	FName PackageName;
	FName AssetName;
	FString SubPath;
};

/** Path of a class. */
struct COREUOBJECT_API FSoftClassPath : public FSoftObjectPath
{
	FSoftClassPath() = default;
	FSoftClassPath(const FString& Path) : FSoftObjectPath(Path) {}
	FSoftClassPath(const TCHAR* Path) : FSoftObjectPath(Path) {}
	FSoftClassPath(const UClass* InClass);

	/** The class if it is loaded; null otherwise. */
	UClass* ResolveClass() const;

	/** The class, loaded when needed; null when it does not derive from T. */
	template<typename T>
	UClass* TryLoadClass() const
	{
		return TryLoadClass(T::StaticClass());
	}

private:
	UClass* TryLoadClass(UClass* BaseClass) const;
};
