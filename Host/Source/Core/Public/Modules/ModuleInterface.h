#pragma once

/** What a module does when the program starts and stops. */
class IModuleInterface
{
public:
	virtual ~IModuleInterface() = default;

	/** Called once, right after the module was loaded. */
	virtual void StartupModule() {}
	/** Called before any module is shut down. */
	virtual void PreUnloadCallback() {}
	/** Called at the end of the program, in the reverse order of loading. */
	virtual void ShutdownModule() {}
	virtual bool IsGameModule() const { return false; }
};

/** A module without code of its own for start and stop. */
class FDefaultModuleImpl : public IModuleInterface
{
};

/** As FDefaultModuleImpl, for a game's module. */
class FDefaultGameModuleImpl : public FDefaultModuleImpl
{
public:
	virtual bool IsGameModule() const override { return true; }
};
