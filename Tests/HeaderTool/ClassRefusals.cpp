#include "RefusalCases.h"

std::vector<FRefusalCase> GetClassRefusals()
{
	return {
		{"MissingBody", R"(
UCLASS()
class UMissingBody : public UObject //!
{
};
)",
			"UMissingBody has no GENERATED_BODY(): write it as the first thing inside the braces"},
		{"BodyNotFirst", R"(
UCLASS()
class UBodyNotFirst : public UObject
{
	int32 Member;
	GENERATED_BODY() //!
};
)",
			"GENERATED_BODY() must be the first thing inside of UBodyNotFirst"},
		{"BodyWithoutMacro", R"(
class UBodyWithoutMacro : public UObject //!
{
	GENERATED_BODY()
};
)",
			"GENERATED_BODY() in UBodyWithoutMacro, which has no UCLASS() or USTRUCT() ahead of it"},
		{"WrongClassPrefix", R"(
UCLASS()
class FWrongClassPrefix : public UObject //!
{
	GENERATED_BODY()
};
)",
			"the class FWrongClassPrefix must be named with the prefix U"},
		{"NoObjectBase", R"(
UCLASS()
class UNoObjectBase //!
{
	GENERATED_BODY()
};
)",
			"UNoObjectBase must derive from UObject or a class derived from it"},
		{"TwoObjectBases", R"(
UCLASS()
class UTwoObjectBasesA : public UObject
{
	GENERATED_BODY()
};

UCLASS()
class UTwoObjectBasesB : public UObject
{
	GENERATED_BODY()
};

UCLASS()
class UTwoObjectBases : public UTwoObjectBasesA, public UTwoObjectBasesB //!
{
	GENERATED_BODY()
};
)",
			"UTwoObjectBases derives from several reflected classes: one is allowed, further bases are I classes of interfaces "
			"or plain classes"},
		{"ContradictingSpecifiers", R"(
UCLASS(Blueprintable, NotBlueprintable)
class UContradictingSpecifiers : public UObject //!
{
	GENERATED_BODY()
};
)",
			"'Blueprintable' and 'NotBlueprintable' contradict each other: take one away"},
		{"ConfigWithoutName", R"(
UCLASS(Config) //!
class UConfigWithoutName : public UObject
{
	GENERATED_BODY()
};
)",
			"Config needs the name of a configuration family: write Config=Game"},
		{"ClassMacroAtWrongPlace", R"(
UCLASS() //!
enum class EClassMacroAtWrongPlace : uint8
{
	A,
};
)",
			"UCLASS() must stand right ahead of the definition of a class"},
		{"InterfaceWithoutBody", R"(
UINTERFACE()
class UInterfaceWithoutBody : public UInterface //!
{
	GENERATED_BODY()
};
)",
			"the interface UInterfaceWithoutBody has no class IInterfaceWithoutBody with GENERATED_BODY() behind it"},
		{"InterfaceWithProperty", R"(
UINTERFACE()
class UInterfaceWithProperty : public UInterface
{
	GENERATED_BODY()
};

class IInterfaceWithProperty
{
	GENERATED_BODY()

	UPROPERTY()
	int32 Member; //!
};
)",
			"an interface has no UPROPERTY(): declare a function that yields 'Member'"},
		{"InterfaceCallable", R"(
UINTERFACE()
class UInterfaceCallable : public UInterface
{
	GENERATED_BODY()
};

class IInterfaceCallable
{
	GENERATED_BODY()

	UFUNCTION(BlueprintCallable) //!
	virtual void Call() = 0;
};
)",
			"'Call' must be a BlueprintNativeEvent or BlueprintImplementableEvent, or the interface "
			"UINTERFACE(meta=(CannotImplementInterfaceInBlueprint))"},
	};
}

std::vector<FRefusalCase> GetStructRefusals()
{
	return {
		{"WrongStructPrefix", R"(
USTRUCT()
struct SWrongStructPrefix //!
{
	GENERATED_BODY()
};
)",
			"the structure SWrongStructPrefix must be named with the prefix F"},
		{"FunctionInStruct", R"(
USTRUCT()
struct FFunctionInStruct
{
	GENERATED_BODY()

	UFUNCTION() //!
	void Call() {}
};
)",
			"a USTRUCT() cannot have a UFUNCTION(): take the macro off, or write a function library"},
		{"NoDefaultConstructor", R"(
USTRUCT()
struct FNoDefaultConstructor //!
{
	GENERATED_BODY()

	explicit FNoDefaultConstructor(int32) {}
};
)",
			"FNoDefaultConstructor has no default constructor: write 'FNoDefaultConstructor() = default;'"},
		{"LostCopy", R"(
USTRUCT()
struct FLostCopy //!
{
	GENERATED_BODY()

	virtual ~FLostCopy() = default;
};
)",
			"FLostCopy declares a destructor or a move, so it must declare its copy constructor and copy assignment too ('= "
			"default' will do)"},
		{"WideBlueprintEnum", R"(
UENUM(BlueprintType) //!
enum class EWideBlueprintEnum : int32
{
	A,
};
)",
			"an enumeration for graphs has one byte: write 'enum class EWideBlueprintEnum : uint8'"},
	};
}
