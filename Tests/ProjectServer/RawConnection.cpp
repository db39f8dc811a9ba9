#include "RawConnection.h"

#include "gtest/gtest.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

FRawConnection::FRawConnection(int Port)
	: Socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
	sockaddr_in Address = {};
	Address.sin_family = AF_INET;
	Address.sin_port = htons(static_cast<uint16_t>(Port));
	Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
	EXPECT_EQ(0, connect(Socket, reinterpret_cast<sockaddr*>(&Address), sizeof(Address)));
}

FRawConnection::~FRawConnection()
{
	close(Socket);
}

bool FRawConnection::Send(const std::string& Bytes) const
{
	for (size_t Sent = 0; Sent < Bytes.size();)
	{
		const ssize_t Part = send(Socket, Bytes.data() + Sent, Bytes.size() - Sent, MSG_NOSIGNAL);
		if (Part <= 0)
		{
			return false;
		}
		Sent += size_t(Part);
	}
	return true;
}

std::string FRawConnection::Read(const std::string& Until) const
{
	std::string Text;
	char Bytes[4096];
	while (Until.empty() || Text.find(Until) == std::string::npos)
	{
		const ssize_t Part = recv(Socket, Bytes, sizeof(Bytes), 0);
		if (Part <= 0)
		{
			break;
		}
		Text.append(Bytes, size_t(Part));
	}
	return Text;
}
