#include "User/HalvexRememberedUser.h"

#include "HAL/PlatformMisc.h"

namespace
{
	const TCHAR* const StoreId = TEXT("Halvex");
	const TCHAR* const UserNameKey = TEXT("UserName");
	const TCHAR* const RefreshTokenKey = TEXT("RefreshToken");
}

void FHalvexRememberedUser::Load(const FString& InServiceName)
{
	ServiceName = InServiceName;
	// Without a name there is no service, and nothing of one.
	const bool bBoth = !ServiceName.IsEmpty() && FPlatformMisc::GetStoredValue(StoreId, ServiceName, UserNameKey, UserName) && FPlatformMisc::GetStoredValue(StoreId, ServiceName, RefreshTokenKey, RefreshToken)
		&& !UserName.IsEmpty();
	if (!bBoth)
	{
		UserName.Empty();
		RefreshToken.Empty();
	}
}

bool FHalvexRememberedUser::Save(const FString& InUserName, const FString& InRefreshToken)
{
	UserName = InUserName;
	RefreshToken = InRefreshToken;
	const bool bStored = FPlatformMisc::SetStoredValue(StoreId, ServiceName, UserNameKey, UserName) && FPlatformMisc::SetStoredValue(StoreId, ServiceName, RefreshTokenKey, RefreshToken);
	if (!bStored)
	{
		Forget();
	}
	return bStored;
}

void FHalvexRememberedUser::Forget()
{
	if (IsAny())
	{
		UserName.Empty();
		RefreshToken.Empty();
		FPlatformMisc::DeleteStoredValue(StoreId, ServiceName, UserNameKey);
		FPlatformMisc::DeleteStoredValue(StoreId, ServiceName, RefreshTokenKey);
	}
}
