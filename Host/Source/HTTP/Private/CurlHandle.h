#pragma once

#include <curl/curl.h>

#include "CurlTransfer.h"

#include <chrono>

namespace Host
{
	/** A transfer as the library runs it. Used on the worker's thread. */
	class FCurlHandle
	{
	public:
		explicit FCurlHandle(TSharedRef<FCurlTransfer> InTransfer);
		~FCurlHandle();
		FCurlHandle(const FCurlHandle&) = delete;
		FCurlHandle& operator=(const FCurlHandle&) = delete;

		CURL* Get() const { return Easy; }
		FCurlTransfer& GetTransfer() const { return *Transfer; }

		/** Writes down how it ended. */
		void Finish(CURLcode Result);

	private:
		void SetUp();
		void SetUpBody();
		void SetUpSafety();
		bool IsLoopback() const;
		EHttpFailureReason Judge(CURLcode Result) const;

		static size_t ReceiveHeader(char* Data, size_t Size, size_t Count, void* User);
		static size_t ReceiveContent(char* Data, size_t Size, size_t Count, void* User);
		static int ReceiveProgress(void* User, curl_off_t Total, curl_off_t Received, curl_off_t ToSend, curl_off_t Sent);

		void TellProgress();
		/** The answer that is coming is a redirect that the content of the request goes along with. */
		bool SendsContentOn() const;
		/** Ends the transfer with a reason of our own. */
		size_t Refuse(const TCHAR* Reason);

		TSharedRef<FCurlTransfer> Transfer;
		/** When the transfer began to count its time; the clock of the program may stand. */
		const std::chrono::steady_clock::time_point Start = std::chrono::steady_clock::now();
		CURL* Easy;
		curl_slist* HeaderList = nullptr;
		int64 HeaderBytes = 0;
		/** The empty line behind the headers has come. */
		bool bHeadersEnded = false;
		FString OwnReason;
		char ErrorText[CURL_ERROR_SIZE] = {};
	};
}
