#pragma once

#include "CoreMinimal.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace Host
{
	/** What a client asked for. */
	struct FServerRequest
	{
		std::string Method;
		/** With the query. */
		std::string Path;
		/** By name in lower case. */
		std::map<std::string, std::string> Headers;
		std::string Body;
	};

	/** What a server may do wrong. */
	enum class EServerFault
	{
		None,
		/** Closes the connection without a byte. */
		CloseAtOnce,
		/** Closes the connection in the middle of the body. */
		CloseInBody,
		/** Closes the connection in the middle of the headers. */
		CloseInHeaders,
		/** Says nothing, until the client goes. */
		Silence,
		/** Sends the headers and nothing more, until the client goes. */
		SilenceAfterHeaders,
		/** Sends the body for ever. */
		EndlessBody,
		/** Sends headers for ever. */
		EndlessHeaders,
		/** Sends the body byte by byte, with a pause after each. */
		Drip,
		/** Sends bytes that are no answer. */
		Garbage,
	};

	/** What the server answers. */
	struct FServerReply
	{
		int Status = 200;
		std::vector<std::pair<std::string, std::string>> Headers;
		std::string Body;
		EServerFault Fault = EServerFault::None;
		/** What the header of the length says; below 0 the truth. */
		long long ClaimedLength = -1;
		/** Sends the body in chunks, without saying its length. */
		bool bChunked = false;
	};

	/** A server on a port of its own of this machine, which answers, well or badly, what the test tells it. */
	class FLoopbackServer
	{
	public:
		/** @param Visit	which request for the path it is, from 1 */
		using FHandler = std::function<FServerReply(const FServerRequest& Request, int Visit)>;

		FLoopbackServer();
		~FLoopbackServer();
		FLoopbackServer(const FLoopbackServer&) = delete;
		FLoopbackServer& operator=(const FLoopbackServer&) = delete;

		/** Answers a path, the query not counting; other paths are 404. */
		void Serve(const std::string& Path, FServerReply Reply);
		void Serve(const std::string& Path, FHandler Handler);

		/** Keeps the answers to all requests back until Release(). */
		void Hold();
		/** Lets as many answers go; below 0 all, also those to come. */
		void Release(int Count = -1);
		/** Requests whose answers are kept back. */
		int GetNumHeld() const;

		/** "http://127.0.0.1:Port" and the path. */
		FString GetUrl(const std::string& Path) const;

		int GetVisits(const std::string& Path) const;
		/** The last request for the path; empty without one. */
		FServerRequest GetLastRequest(const std::string& Path) const;
		/** Connections that were accepted so far. */
		int GetNumConnections() const { return NumConnections; }
		/** Most requests that were answered at the same time. */
		int GetMostAtOnce() const;

	private:
		struct FConnection;

		void Accept();
		void Converse(FConnection& Connection);
		bool ReadRequest(FConnection& Connection, FServerRequest& OutRequest);
		FServerReply Answer(const FServerRequest& Request);
		void WaitForRelease();
		/** False when the connection ends with the reply. */
		bool Send(FConnection& Connection, const FServerReply& Reply, bool bHead);
		bool SendBody(FConnection& Connection, const FServerReply& Reply);
		void WaitForEnd(FConnection& Connection);

		int Listener = -1;
		int Port = 0;
		std::thread AcceptThread;
		std::vector<std::unique_ptr<FConnection>> Connections;
		std::atomic<bool> bStopping = false;
		std::atomic<int> NumConnections = 0;

		mutable std::mutex Mutex;
		std::condition_variable Released;
		std::map<std::string, FHandler> Handlers;
		std::map<std::string, int> Visits;
		std::map<std::string, FServerRequest> LastRequests;
		bool bHolding = false;
		int NumToRelease = 0;
		int NumHeld = 0;
		int NumAtOnce = 0;
		int MostAtOnce = 0;
	};
}
