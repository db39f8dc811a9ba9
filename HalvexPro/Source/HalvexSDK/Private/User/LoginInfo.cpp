#include "User/LoginInfo.h"

bool FLoginInfo::IsSameUserData(const FLoginInfo& Other) const
{
	return UserId == Other.UserId && UserName == Other.UserName && DisplayName == Other.DisplayName && Email == Other.Email
		&& bIsGuest == Other.bIsGuest && UserImage.ImageName == Other.UserImage.ImageName && UserImage.Address == Other.UserImage.Address;
}
