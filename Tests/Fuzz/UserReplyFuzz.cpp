#include <cstddef>
#include <cstdint>
#include <iterator>

#include "CoreMinimal.h"
#include "Service/HalvexServiceConnection.h"
#include "User/HalvexUserMessages.h"

namespace
{
	class FNoConnection final : public IHalvexServiceConnection
	{
	public:
		virtual TSharedRef<IHalvexServiceExchange> Send(const FHalvexServiceRequest&, FCallback) override { return MakeShared<IHalvexServiceExchange>(); }
		virtual FString GetServiceName() const override { return TEXT("none"); }
		virtual FString ResolveAddress(const FString& Address) const override { return Address; }
	};
}

/**
 * Any answer to a sign-in, after a byte that chooses the status: whoever is signed in has a key, and a token that fits into a
 * header and ends some day; whoever is not has a reason or was refused.
 */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	if (Size == 0)
	{
		return 0;
	}
	constexpr int32 Statuses[] = { 200, 401, 429, 404, 500 };
	FHalvexServiceReply Reply;
	Reply.Outcome = EHalvexServiceOutcome::Answered;
	Reply.Status = Statuses[Data[0] % std::size(Statuses)];
	Reply.ContentType = TEXT("application/json");
	Reply.Body = FString(FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Data + 1), static_cast<int32>(Size - 1)));
	const FNoConnection Connection;
	FHalvexSessionGrant Grant;
	FString Reason;
	const EHalvexLoginError Error = HalvexUserMessages::ReadGrant(Reply, Connection, EHalvexLoginError::InvalidCredentials, Grant, Reason);
	check((Error == EHalvexLoginError::BadAnswer || Error == EHalvexLoginError::ServerFault) == !Reason.IsEmpty());
	if (Error == EHalvexLoginError::None)
	{
		check(!Grant.LoginInfo.UserId.IsEmpty() && !Grant.LoginInfo.DisplayName.IsEmpty());
		check(Grant.ExpiresIn > 0.0 && Grant.ExpiresIn < 1e9);
		check(!Grant.Token.IsEmpty() && !Grant.Token.Contains(TEXT("\n")) && !Grant.Token.Contains(TEXT("\r")));
	}
	FLoginInfo LoginInfo;
	FString UserReason;
	const EHalvexLoginError UserError = HalvexUserMessages::ReadUser(Reply, Connection, LoginInfo, UserReason);
	check(UserError != EHalvexLoginError::None || !LoginInfo.UserId.IsEmpty());
	return 0;
}
