#pragma once

#include "Host/AssetLoaders.h"

namespace Host
{
	/**
	 * Reader of "Name.asset.json": {"Class": "/Script/Module.Class", "Properties": {...}}. A property that cannot be read is an
	 * error in the log; the others are read all the same.
	 */
	class FObjectAsset
	{
	public:
		/** Null, after a line in the log, when the file is no such JSON or its class is unknown. */
		static UObject* Load(const FAssetRequest& Request);

		/** Reads the file into an object that it became before; properties that it no longer names go back to their defaults. */
		static bool Reload(UObject* Object, const FAssetRequest& Request);

		/** The reader of the class or its closest base that has one; null for the general one. */
		static const FAssetReader* FindReader(const UClass* Class);

	private:
		static UClass* FindClass(const FJsonNode& Root);
		static bool Read(UObject* Object, const FJsonNode& Root, const FAssetRequest& Request);
	};
}
