# Modules, and the programs made of them.
#
#   halvex_module(NAME Slate DEPENDS Core CoreUObject SlateCore [LIBRARIES Library::x] [PRECOMPILE header])
#   halvex_plugin_module(HalvexProUI)        reads its dependencies from HalvexProUI.Build.cs
#   halvex_program(NAME HalvexViewer MODULES Launch HalvexProUI [LIBRARIES ...] SOURCES ...)
#
# A module finds the headers of the modules that it names, and of no others: floors are enforced by what is not
# on the include path. Linking follows the names transitively.

set(HALVEX_GENERATED_DIR "${CMAKE_BINARY_DIR}/Generated")

# Every module that Module stands on, itself last, each once, lowest first.
function(_halvex_collect_modules Module Result)
    set(Collected ${${Result}})
    if(NOT Module IN_LIST Collected)
        get_property(Depends GLOBAL PROPERTY HALVEX_${Module}_DEPENDS)
        foreach(Dependency IN LISTS Depends)
            _halvex_collect_modules(${Dependency} Collected)
        endforeach()
        list(APPEND Collected ${Module})
    endif()
    set(${Result} ${Collected} PARENT_SCOPE)
endfunction()

# Puts the public and generated headers of the named modules on the target's include path; after SYSTEM, as headers whose
# warnings are not this target's.
function(_halvex_include_modules Target)
    set(System)
    foreach(Dependency IN LISTS ARGN)
        if(Dependency STREQUAL "SYSTEM")
            set(System SYSTEM)
            continue()
        endif()
        get_property(Dir GLOBAL PROPERTY HALVEX_${Dependency}_DIR)
        if(NOT Dir)
            message(FATAL_ERROR "${Target} names the module ${Dependency}, which is not declared (yet): a module depends only on what stands below it")
        endif()
        target_include_directories(${Target} ${System} PRIVATE "${Dir}/Public")
        get_property(Reflected GLOBAL PROPERTY HALVEX_${Dependency}_REFLECTED)
        if(Reflected)
            target_include_directories(${Target} ${System} PRIVATE "${HALVEX_GENERATED_DIR}/${Dependency}")
            add_dependencies(${Target} ${Dependency}_Reflection)
        endif()
        string(TOUPPER ${Dependency} Upper)
        target_compile_definitions(${Target} PRIVATE ${Upper}_API=)
    endforeach()
endfunction()

# Runs the header tool over the module's reflected headers.
function(_halvex_reflect Module Dir)
    set(Headers ${ARGN})
    set(OutDir "${HALVEX_GENERATED_DIR}/${Module}")
    file(MAKE_DIRECTORY "${OutDir}")
    set(Outputs "${OutDir}/${Module}.gen.cpp")
    foreach(Header IN LISTS Headers)
        get_filename_component(Base "${Header}" NAME_WE)
        list(APPEND Outputs "${OutDir}/${Base}.generated.h")
    endforeach()

    get_property(Depends GLOBAL PROPERTY HALVEX_${Module}_DEPENDS)
    set(Arguments --module ${Module} --output "${OutDir}" --include "${Dir}/Public" --include "${Dir}/Private")
    set(DependsHeaders)
    foreach(Dependency IN LISTS Depends)
        get_property(DependencyDir GLOBAL PROPERTY HALVEX_${Dependency}_DIR)
        list(APPEND Arguments --include "${DependencyDir}/Public")
        string(TOUPPER ${Dependency} Upper)
        list(APPEND Arguments --define ${Upper}_API=)
    endforeach()
    string(TOUPPER ${Module} Upper)
    list(APPEND Arguments --define ${Upper}_API=)
    foreach(Header IN LISTS Headers)
        list(APPEND Arguments --header "${Header}")
    endforeach()
    list(JOIN Arguments "\n" ArgumentLines)
    file(CONFIGURE OUTPUT "${OutDir}/${Module}.args" CONTENT "${ArgumentLines}\n" @ONLY)

    add_custom_command(
        OUTPUT ${Outputs}
        COMMAND HeaderTool --arguments "${OutDir}/${Module}.args" --depfile "${OutDir}/${Module}.d"
        DEPENDS HeaderTool ${Headers} "${OutDir}/${Module}.args"
        DEPFILE "${OutDir}/${Module}.d"
        COMMENT "Reflecting ${Module}"
        VERBATIM)
    add_custom_target(${Module}_Reflection DEPENDS ${Outputs})
endfunction()

function(halvex_module)
    cmake_parse_arguments(Arg "PLUGIN" "NAME;DIRECTORY;PRECOMPILE" "DEPENDS;LIBRARIES" ${ARGN})
    if(NOT Arg_DIRECTORY)
        set(Arg_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/${Arg_NAME}")
    endif()
    set(Dir "${Arg_DIRECTORY}")
    set_property(GLOBAL PROPERTY HALVEX_${Arg_NAME}_DIR "${Dir}")
    set_property(GLOBAL PROPERTY HALVEX_${Arg_NAME}_DEPENDS "${Arg_DEPENDS}")
    set_property(GLOBAL APPEND PROPERTY HALVEX_MODULES ${Arg_NAME})

    file(GLOB_RECURSE Sources CONFIGURE_DEPENDS "${Dir}/Private/*.cpp")
    file(GLOB_RECURSE Headers CONFIGURE_DEPENDS "${Dir}/Public/*.h" "${Dir}/Private/*.h")
    set(Reflected)
    foreach(Header IN LISTS Headers)
        file(STRINGS "${Header}" Lines REGEX "^#include \".*\\.generated\\.h\"" LIMIT_COUNT 1)
        if(Lines)
            list(APPEND Reflected "${Header}")
        endif()
    endforeach()
    set(Started OFF)
    foreach(Source IN LISTS Sources)
        file(STRINGS "${Source}" Lines REGEX "^IMPLEMENT_MODULE\\(" LIMIT_COUNT 1)
        if(Lines)
            set(Started ON)
        endif()
    endforeach()
    set_property(GLOBAL PROPERTY HALVEX_${Arg_NAME}_STARTED ${Started})
    set_property(GLOBAL PROPERTY HALVEX_${Arg_NAME}_REFLECTED "${Reflected}")

    if(Reflected)
        _halvex_reflect(${Arg_NAME} "${Dir}" ${Reflected})
        list(APPEND Sources "${HALVEX_GENERATED_DIR}/${Arg_NAME}/${Arg_NAME}.gen.cpp")
    endif()
    add_library(${Arg_NAME} STATIC ${Sources})
    target_include_directories(${Arg_NAME} PRIVATE "${Dir}/Private")
    set(Below)
    if(Arg_PLUGIN)
        # The plugin is built more strictly than what it stands on.
        set(Below SYSTEM)
    endif()
    _halvex_include_modules(${Arg_NAME} ${Arg_NAME} ${Below} ${Arg_DEPENDS})
    target_link_libraries(${Arg_NAME} PUBLIC ${Arg_DEPENDS})
    foreach(Library IN LISTS Arg_LIBRARIES)
        target_link_libraries(${Arg_NAME} PRIVATE ${Library})
    endforeach()
    if(Arg_PLUGIN)
        # As the engine builds its modules.
        target_compile_options(${Arg_NAME} PRIVATE -fno-exceptions -Wshadow)
    endif()
    if(Arg_PRECOMPILE)
        target_precompile_headers(${Arg_NAME} PRIVATE "${Arg_PRECOMPILE}")
    endif()
endfunction()

# A module of the plugin: its Build.cs is the one list of what it depends on.
function(halvex_plugin_module Module)
    set(Dir "${CMAKE_CURRENT_SOURCE_DIR}/Source/${Module}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${Dir}/${Module}.Build.cs")
    file(READ "${Dir}/${Module}.Build.cs" Rules)
    set(Depends)
    string(REGEX MATCHALL "DependencyModuleNames\\.AddRange\\([^;]*;" Ranges "${Rules}")
    foreach(Range IN LISTS Ranges)
        string(REGEX MATCHALL "\"[A-Za-z0-9]+\"" Names "${Range}")
        foreach(Name IN LISTS Names)
            string(REPLACE "\"" "" Name "${Name}")
            list(APPEND Depends ${Name})
        endforeach()
    endforeach()
    halvex_module(NAME ${Module} DIRECTORY "${Dir}" PLUGIN DEPENDS ${Depends} PRECOMPILE <CoreMinimal.h>)
endfunction()

# A program, with the list of the modules linked into it, lowest first, for the module manager.
function(halvex_program)
    cmake_parse_arguments(Arg "" "NAME;PRECOMPILE" "MODULES;LIBRARIES;SOURCES" ${ARGN})
    set(Modules)
    foreach(Module IN LISTS Arg_MODULES)
        _halvex_collect_modules(${Module} Modules)
    endforeach()
    set(Declarations)
    set(Entries)
    foreach(Module IN LISTS Modules)
        get_property(Reflected GLOBAL PROPERTY HALVEX_${Module}_REFLECTED)
        get_property(Started GLOBAL PROPERTY HALVEX_${Module}_STARTED)
        set(Register nullptr)
        set(Create nullptr)
        if(Reflected)
            string(APPEND Declarations "namespace Host { void RegisterReflection_${Module}(); }\n")
            set(Register "&Host::RegisterReflection_${Module}")
        endif()
        if(Started)
            string(APPEND Declarations "IModuleInterface* CreateModule_${Module}();\n")
            set(Create "&CreateModule_${Module}")
        endif()
        string(APPEND Entries "    { \"${Module}\", ${Register}, ${Create} },\n")
    endforeach()
    set(ModuleList "${CMAKE_CURRENT_BINARY_DIR}/${Arg_NAME}.modules.cpp")
    file(CONFIGURE OUTPUT "${ModuleList}" @ONLY CONTENT
"// Generated by the build: the modules linked into @Arg_NAME@, lowest first.
#include \"Host/LinkedModules.h\"
@Declarations@
static const Host::FLinkedModule Modules[] = {
@Entries@};
const Host::FLinkedModule* Host::GetLinkedModules(int& OutCount)
{
    OutCount = sizeof(Modules) / sizeof(Modules[0]);
    return Modules;
}
")
    add_executable(${Arg_NAME} ${Arg_SOURCES} "${ModuleList}")
    _halvex_include_modules(${Arg_NAME} ${Modules})
    target_link_libraries(${Arg_NAME} PRIVATE ${Arg_MODULES} ${Arg_LIBRARIES})
    if(Arg_PRECOMPILE)
        target_precompile_headers(${Arg_NAME} PRIVATE "${Arg_PRECOMPILE}")
    endif()
endfunction()
