#pragma once

#include "Host/ProjectService.h"

#include <filesystem>
#include <string>

/** A project's folder, gone at its end, with two users whose hashes are as cheap as they may be. */
class FServiceFolder
{
public:
	FServiceFolder();
	~FServiceFolder();
	FServiceFolder(const FServiceFolder&) = delete;
	FServiceFolder& operator=(const FServiceFolder&) = delete;

	void Write(const std::string& Name, const std::string& Text) const;
	std::string Read(const std::string& Name) const;
	FString GetPath() const;

	const std::filesystem::path Path;
};

/** A service over such a folder, with the test's own clock. */
class FTestService
{
public:
	explicit FTestService(const FServiceFolder& Folder, bool bKeepSessions = false);

	Host::FServiceResponse Send(const char* Method, const std::string& Target, const std::string& Body = std::string(), const std::string& Token = std::string());
	Host::FServiceResponse SignIn(const std::string& User, const std::string& Password, bool bRemember = false, const char* Address = "test");
	Host::FServiceResponse Refresh(const std::string& RefreshToken);

	/** The text at a path in the body, as "user.displayName"; a number or truth value as JSON writes it. "(none)" when there is none. */
	static std::string Get(const Host::FServiceResponse& Response, const char* Member);
	static std::string GetBody(const Host::FServiceResponse& Response);
	/** The status, and the error's code behind it if there is one: "401 invalid_token". */
	static std::string Describe(const Host::FServiceResponse& Response);

	double Now = 1800000000.0;
	Host::FProjectServiceSettings Settings;

private:
	std::unique_ptr<Host::FProjectService> Service;
};
