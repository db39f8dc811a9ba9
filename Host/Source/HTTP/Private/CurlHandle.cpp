#include "CurlHandle.h"

#include "Host/HttpLimits.h"
#include "HttpMessage.h"

#include <cmath>

namespace Host
{
	namespace
	{
		long ToMilliseconds(float Seconds)
		{
			return static_cast<long>(std::ceil(Seconds * 1000.0f));
		}

		FStringView TrimLine(FStringView Line)
		{
			return Line.TrimStartAndEnd();
		}

		/** Whether a redirect stays at a server: it names that one, or a path alone. */
		bool StaysAt(const FString& Server, const FString& Location)
		{
			const bool bPath = Location.StartsWith(TEXT("/")) && !Location.StartsWith(TEXT("//")) && !Location.StartsWith(TEXT("/\\"));
			return bPath || FindServer(Location).Equals(Server, ESearchCase::CaseSensitive);
		}
	}

	FCurlHandle::FCurlHandle(TSharedRef<FCurlTransfer> InTransfer)
		: Transfer(MoveTemp(InTransfer))
		, Easy(curl_easy_init())
	{
		SetUp();
	}

	FCurlHandle::~FCurlHandle()
	{
		curl_easy_cleanup(Easy);
		curl_slist_free_all(HeaderList);
	}

	void FCurlHandle::SetUp()
	{
		curl_easy_setopt(Easy, CURLOPT_PRIVATE, this);
		curl_easy_setopt(Easy, CURLOPT_URL, Transfer->Url.c_str());
		curl_easy_setopt(Easy, CURLOPT_ERRORBUFFER, ErrorText);
		curl_easy_setopt(Easy, CURLOPT_HEADERFUNCTION, &FCurlHandle::ReceiveHeader);
		curl_easy_setopt(Easy, CURLOPT_HEADERDATA, this);
		curl_easy_setopt(Easy, CURLOPT_WRITEFUNCTION, &FCurlHandle::ReceiveContent);
		curl_easy_setopt(Easy, CURLOPT_WRITEDATA, this);
		curl_easy_setopt(Easy, CURLOPT_XFERINFOFUNCTION, &FCurlHandle::ReceiveProgress);
		curl_easy_setopt(Easy, CURLOPT_XFERINFODATA, this);
		curl_easy_setopt(Easy, CURLOPT_NOPROGRESS, 0L);
		// Whatever the library can decompress.
		curl_easy_setopt(Easy, CURLOPT_ACCEPT_ENCODING, "");
		curl_easy_setopt(Easy, CURLOPT_TIMEOUT_MS, ToMilliseconds(Transfer->TotalTimeout));
		curl_easy_setopt(Easy, CURLOPT_CONNECTTIMEOUT_MS, ToMilliseconds(Transfer->ConnectionTimeout));
		if (Transfer->ActivityTimeout > 0.0f)
		{
			curl_easy_setopt(Easy, CURLOPT_LOW_SPEED_LIMIT, 1L);
			curl_easy_setopt(Easy, CURLOPT_LOW_SPEED_TIME, static_cast<long>(std::ceil(Transfer->ActivityTimeout)));
		}
		for (const std::string& Header : Transfer->Headers)
		{
			HeaderList = curl_slist_append(HeaderList, Header.c_str());
		}
		SetUpBody();
		SetUpSafety();
		curl_easy_setopt(Easy, CURLOPT_HTTPHEADER, HeaderList);
	}

	void FCurlHandle::SetUpBody()
	{
		const std::string& Verb = Transfer->Verb;
		if (Verb == "HEAD")
		{
			curl_easy_setopt(Easy, CURLOPT_NOBODY, 1L);
			return;
		}
		if (Verb == "POST" || Transfer->Body.Num() > 0)
		{
			curl_easy_setopt(Easy, CURLOPT_POST, 1L);
			curl_easy_setopt(Easy, CURLOPT_POSTFIELDS, Transfer->Body.GetData() ? reinterpret_cast<const char*>(Transfer->Body.GetData()) : "");
			curl_easy_setopt(Easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(Transfer->Body.Num()));
			// Without waiting for the server to say that it wants the body.
			HeaderList = curl_slist_append(HeaderList, "Expect:");
		}
		if (Verb != "GET" && Verb != "POST")
		{
			curl_easy_setopt(Easy, CURLOPT_CUSTOMREQUEST, Verb.c_str());
		}
	}

	void FCurlHandle::SetUpSafety()
	{
		curl_easy_setopt(Easy, CURLOPT_NOSIGNAL, 1L);
		curl_easy_setopt(Easy, CURLOPT_SSL_VERIFYPEER, 1L);
		curl_easy_setopt(Easy, CURLOPT_SSL_VERIFYHOST, 2L);
		curl_easy_setopt(Easy, CURLOPT_PROTOCOLS_STR, "http,https");
		// What began unseen by others stays so.
		const bool bSecure = Transfer->Server.starts_with("https:");
		curl_easy_setopt(Easy, CURLOPT_REDIR_PROTOCOLS_STR, bSecure ? "https" : "http,https");
		curl_easy_setopt(Easy, CURLOPT_FOLLOWLOCATION, 1L);
		curl_easy_setopt(Easy, CURLOPT_MAXREDIRS, static_cast<long>(FHttpLimits::MaxRedirects));
		curl_easy_setopt(Easy, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(FHttpLimits::MaxContentBytes));
		if (IsLoopback())
		{
			// A proxy would look for the server on its own machine.
			curl_easy_setopt(Easy, CURLOPT_PROXY, "");
		}
	}

	bool FCurlHandle::IsLoopback() const
	{
		const std::string& Server = Transfer->Server;
		const size_t Host = Server.find("://") + 3;
		return Server.compare(Host, 4, "127.") == 0 || Server.compare(Host, 9, "localhost") == 0 || Server.compare(Host, 5, "[::1]") == 0;
	}

	bool FCurlHandle::SendsContentOn() const
	{
		long Code = 0;
		curl_easy_getinfo(Easy, CURLINFO_RESPONSE_CODE, &Code);
		return Transfer->Body.Num() > 0 && (Code == 307 || Code == 308);
	}

	size_t FCurlHandle::Refuse(const TCHAR* Reason)
	{
		OwnReason = Reason;
		// Anything but the size of what came.
		return 0;
	}

	size_t FCurlHandle::ReceiveHeader(char* Data, size_t Size, size_t Count, void* User)
	{
		FCurlHandle& Self = *static_cast<FCurlHandle*>(User);
		const size_t Bytes = Size * Count;
		Self.HeaderBytes += static_cast<int64>(Bytes);
		if (Self.HeaderBytes > FHttpLimits::MaxHeaderBytes)
		{
			return Self.Refuse(TEXT("the headers are too large"));
		}
		const FString Line(FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Data), static_cast<int32>(Bytes)));
		if (Line.StartsWith(TEXT("HTTP/")))
		{
			// Another answer of the same exchange, such as the one after a redirect.
			Self.Transfer->ResponseHeaders.Reset();
			Self.Transfer->Content.Reset();
			Self.bHeadersEnded = false;
			return Bytes;
		}
		Self.bHeadersEnded = Self.bHeadersEnded || TrimLine(Line).IsEmpty();
		int32 Colon = INDEX_NONE;
		if (Line.FindChar(TEXT(':'), Colon))
		{
			const FStringView View(Line);
			const FString Name(TrimLine(View.Left(Colon)));
			const FString Value(TrimLine(View.RightChop(Colon + 1)));
			if (Name.Equals(TEXT("Location"), ESearchCase::IgnoreCase) && Self.SendsContentOn() && !StaysAt(FString(UTF8_TO_TCHAR(Self.Transfer->Server.c_str())), Value))
			{
				return Self.Refuse(TEXT("a redirect would hand the content of the request to another server"));
			}
			Self.Transfer->ResponseHeaders.Emplace(Name, Value);
		}
		return Bytes;
	}

	size_t FCurlHandle::ReceiveContent(char* Data, size_t Size, size_t Count, void* User)
	{
		FCurlHandle& Self = *static_cast<FCurlHandle*>(User);
		const size_t Bytes = Size * Count;
		TArray<uint8>& Content = Self.Transfer->Content;
		if (Content.Num() + static_cast<int64>(Bytes) > FHttpLimits::MaxContentBytes)
		{
			return Self.Refuse(TEXT("the content is too large"));
		}
		Content.Append(reinterpret_cast<const uint8*>(Data), static_cast<int32>(Bytes));
		Self.Transfer->BytesReceived = static_cast<uint64>(Content.Num());
		Self.TellProgress();
		return Bytes;
	}

	int FCurlHandle::ReceiveProgress(void* User, curl_off_t, curl_off_t, curl_off_t, curl_off_t Sent)
	{
		FCurlHandle& Self = *static_cast<FCurlHandle*>(User);
		if (static_cast<uint64>(Sent) != Self.Transfer->BytesSent)
		{
			Self.Transfer->BytesSent = static_cast<uint64>(Sent);
			Self.TellProgress();
		}
		return Self.Transfer->bCancelled ? 1 : 0;
	}

	void FCurlHandle::TellProgress()
	{
		if (Transfer->OnProgress && !Transfer->bProgressTold.exchange(true))
		{
			Transfer->OnProgress();
		}
	}

	void FCurlHandle::Finish(CURLcode Result)
	{
		long Code = 0;
		curl_easy_getinfo(Easy, CURLINFO_RESPONSE_CODE, &Code);
		const char* EffectiveUrl = nullptr;
		curl_easy_getinfo(Easy, CURLINFO_EFFECTIVE_URL, &EffectiveUrl);
		Transfer->Code = static_cast<int32>(Code);
		Transfer->EffectiveUrl = FString(UTF8_TO_TCHAR(EffectiveUrl ? EffectiveUrl : ""));
		Transfer->FailureReason = Judge(Result);
		if (Transfer->FailureReason != EHttpFailureReason::None)
		{
			Transfer->Error = OwnReason.IsEmpty() ? FString(UTF8_TO_TCHAR(ErrorText[0] ? ErrorText : curl_easy_strerror(Result))) : OwnReason;
			Transfer->Content.Empty();
		}
	}

	EHttpFailureReason FCurlHandle::Judge(CURLcode Result) const
	{
		switch (Result)
		{
		case CURLE_OK:
			// The library takes a connection that ends among the headers for an answer without content.
			return Transfer->Code > 0 && bHeadersEnded ? EHttpFailureReason::None : EHttpFailureReason::ConnectionError;
		case CURLE_OPERATION_TIMEDOUT:
		{
			// Going silent and taking too long have one number; the time tells which it was. The library rounds to milliseconds, so it
			// may end a transfer a little early.
			constexpr double Early = 0.005;
			const std::chrono::duration<double> Taken = std::chrono::steady_clock::now() - Start;
			const bool bTooLong = Transfer->TotalTimeout > 0.0f && Taken.count() + Early >= static_cast<double>(Transfer->TotalTimeout);
			return bTooLong ? EHttpFailureReason::TimedOut : EHttpFailureReason::ConnectionError;
		}
		case CURLE_COULDNT_RESOLVE_HOST:
		case CURLE_COULDNT_RESOLVE_PROXY:
		case CURLE_COULDNT_CONNECT:
		case CURLE_GOT_NOTHING:
		case CURLE_SEND_ERROR:
		case CURLE_RECV_ERROR:
		case CURLE_PARTIAL_FILE:
		case CURLE_HTTP2:
		case CURLE_HTTP2_STREAM:
			return EHttpFailureReason::ConnectionError;
		case CURLE_ABORTED_BY_CALLBACK:
			return EHttpFailureReason::Cancelled;
		default:
			return EHttpFailureReason::Other;
		}
	}
}
