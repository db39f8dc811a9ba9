#pragma once

#include "CurlHandle.h"

#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace Host
{
	/** The one thread that talks to servers. It starts with the first transfer and sleeps while there is none. */
	class FCurlWorker
	{
	public:
		static FCurlWorker& Get();

		/** Begins a transfer when its server's turn comes. Its OnDone is called on the thread, once, unless the worker is stopped before. */
		void Begin(const TSharedRef<FCurlTransfer>& Transfer, int32 MaxPerServer);

		/** Ends a transfer soon; its OnDone is called. */
		void Cancel(FCurlTransfer& Transfer);

		/** Ends the thread and all transfers, without calling anyone. Later transfers start it again. */
		void Stop();

	private:
		void Run();
		void WaitForWork();
		void TakeIncoming();
		void DropCancelled();
		void StartWaiting();
		void FinishDone();
		void Finish(CURL* Easy, CURLcode Result);

		std::thread Thread;
		std::mutex Mutex;
		std::condition_variable WorkCame;
		// Under the mutex:
		std::vector<TSharedRef<FCurlTransfer>> Incoming;
		int32 MaxPerServer = 1;
		bool bStopping = false;
		bool bSomeCancelled = false;

		// Of the thread:
		CURLM* Multi = nullptr;
		std::deque<TSharedRef<FCurlTransfer>> Waiting;
		std::map<CURL*, std::unique_ptr<FCurlHandle>> Running;
		std::map<std::string, int32> NumRunningByServer;
	};
}
