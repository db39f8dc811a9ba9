#include "LeakWatch.h"

#include "Host/Texture.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"

namespace Host
{
	namespace
	{
		/** Objects outside assets, which stay loaded on purpose. */
		TArray<const UObject*> FindTransientObjects()
		{
			TArray<const UObject*> Objects;
			for (TObjectIterator<UObject> It; It; ++It)
			{
				if (It->GetOutermost() == GetTransientPackage())
				{
					Objects.Add(*It);
				}
			}
			return Objects;
		}
	}

	void FLeakWatch::OnTestStart(const testing::TestInfo&)
	{
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		NumObjects = FindTransientObjects().Num();
		NumTextures = FTexture::GetNumAlive();
	}

	void FLeakWatch::OnTestEnd(const testing::TestInfo&)
	{
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		const TArray<const UObject*> Objects = FindTransientObjects();
		if (Objects.Num() > NumObjects)
		{
			ADD_FAILURE() << Objects.Num() - NumObjects << " objects are left alive, the last is " << TCHAR_TO_UTF8(*Objects.Last()->GetFullName());
		}
		EXPECT_LE(FTexture::GetNumAlive(), NumTextures) << "textures are left alive";
	}
}
