#pragma once

#include "Host/ProjectService.h"

#include <memory>
#include <string>

/**
 * Brings requests over HTTP/1.1 to a service, a few at once on threads of its own. It writes one line a request to the standard
 * output: who, what, the answer's status and size, and how long it took; no headers, no bodies, and no queries of addresses.
 */
class FHttpServer
{
public:
	/** Requests that are answered at once; others wait. As many passwords are checked at once, at 64 MiB each. */
	static constexpr unsigned NumThreads = 4;

	FHttpServer();
	~FHttpServer();
	FHttpServer(const FHttpServer&) = delete;
	FHttpServer& operator=(const FHttpServer&) = delete;

	/**
	 * Starts to listen.
	 * @param Address	an IPv4 or IPv6 address of this machine
	 * @param Port		0 for any that is free
	 * @return false, with the reason, when it cannot
	 */
	bool Start(Host::FProjectService& Service, const std::string& Address, uint16 Port, std::string& OutReason);

	/** What it listens on, as "http://127.0.0.1:8080". */
	std::string GetUrl() const;

	/** Takes no more connections, and ends when the requests that have begun are answered, after 5 seconds at the latest. */
	void Stop();

private:
	struct FImplementation;
	std::unique_ptr<FImplementation> Implementation;
};
