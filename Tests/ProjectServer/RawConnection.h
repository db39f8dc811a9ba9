#pragma once

#include <string>

/** A connection to a server of this machine that sends exactly the bytes that a test wants. */
class FRawConnection
{
public:
	explicit FRawConnection(int Port);
	~FRawConnection();
	FRawConnection(const FRawConnection&) = delete;
	FRawConnection& operator=(const FRawConnection&) = delete;

	/** False when the server does not take it any more. */
	bool Send(const std::string& Bytes) const;
	/** Reads until the text has come, or all until the server closes when there is none given. */
	std::string Read(const std::string& Until = std::string()) const;

private:
	int Socket;
};
