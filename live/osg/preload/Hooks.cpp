// SPDX-License-Identifier: MIT
// Stands before OpenSceneGraph's viewer in a program that was started with this library in LD_PRELOAD, and is
// entered where a frame begins. It links nothing of OpenSceneGraph, so that it can be in the way of any
// program: what needs that library is loaded with the first frame, and only into a program that has the
// version it was built for.
#include <cstdio>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#define SCOPIX_HOOK __attribute__((visibility("default")))

namespace
{

void say(const std::string& sentence)
{
    std::fprintf(stderr, "Scopix: %s\n", sentence.c_str());
}

void sayOtherVersion(const std::string& used)
{
    static bool isSaid = false;
    if (!isSaid)
        say("the program uses " + used +
            ", and only OpenSceneGraph " SCOPIX_OSG_VERSION " can be inspected.");
    isSaid = true;
}

constexpr const char* viewerLibrary = "libosgViewer.so." SCOPIX_OSG_SOVERSION;

/// The function of the program's own viewer library behind one of ours.
void* next(const char* name)
{
    if (void* function = dlsym(RTLD_NEXT, name))
        return function;
    // A library that was loaded for a part of the program only is not among the next ones.
    void* library = dlopen(viewerLibrary, RTLD_LAZY | RTLD_NOLOAD);
    return library ? dlsym(library, name) : nullptr;
}

std::string folderOfThisLibrary()
{
    Dl_info info;
    if (!dladdr(reinterpret_cast<void*>(&folderOfThisLibrary), &info) || !info.dli_fname)
        return {};
    const std::string path = info.dli_fname;
    return path.substr(0, path.rfind('/') + 1);
}

/// What was loaded with the first frame; empty functions where it could not be.
struct Module {
    using Function = void (*)(void*);

    Function betweenFrames = nullptr;
    Function viewerIdle = nullptr;
    Function compositeViewerIdle = nullptr;

    Module() { load(); }

    void load()
    {
        if (!dlopen(viewerLibrary, RTLD_LAZY | RTLD_NOLOAD))
            return sayOtherVersion("another version of OpenSceneGraph");
        const std::string path = folderOfThisLibrary() + SCOPIX_LIVE_OSG_MODULE;
        void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (!library)
            return say("the program cannot be inspected: " + std::string(dlerror()) + ".");
        betweenFrames = function(library, "scopixLiveBetweenFrames");
        viewerIdle = function(library, "scopixLiveViewerIdle");
        compositeViewerIdle = function(library, "scopixLiveCompositeViewerIdle");
    }

    static Function function(void* library, const char* name)
    {
        return reinterpret_cast<Function>(dlsym(library, name));
    }

    static const Module& instance()
    {
        static const Module module;
        return module;
    }
};

void call(Module::Function function, void* viewer)
{
    if (function)
        function(viewer);
}

/// A frame leads to the traversals, which programs also call by themselves.
thread_local int depth = 0;

class Nesting
{
public:
    Nesting() { ++depth; }
    ~Nesting() { --depth; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

    static bool isOutermost() { return depth == 0; }
};

void betweenFrames(void* viewer)
{
    if (Nesting::isOutermost())
        call(Module::instance().betweenFrames, viewer);
}

// --- Programs that will never get here

int noteViewerLibrary(dl_phdr_info* info, std::size_t, void* found)
{
    const char* name = std::strstr(info->dlpi_name, "libosgViewer.so");
    if (!name)
        return 0;
    *static_cast<std::string*>(found) = name;
    return 1;
}

bool executableContains(const char* name)
{
    const int file = open("/proc/self/exe", O_RDONLY | O_CLOEXEC);
    struct stat status {
    };
    if (file < 0 || fstat(file, &status) != 0 || status.st_size == 0) {
        if (file >= 0)
            close(file);
        return false;
    }
    const auto size = std::size_t(status.st_size);
    void* bytes = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
    close(file);
    if (bytes == MAP_FAILED)
        return false;
    const bool contains = memmem(bytes, size, name, std::strlen(name)) != nullptr;
    munmap(bytes, size);
    return contains;
}

/// Says once why a program cannot be inspected, where that is known from the start. Others may load the
/// viewer later.
__attribute__((constructor)) void sayWhyNot()
{
    std::string library;
    dl_iterate_phdr(noteViewerLibrary, &library);
    if (library.empty() && executableContains("N9osgViewer10ViewerBaseE"))
        say("the program has OpenSceneGraph built into it, so that it cannot be inspected; it would have to "
            "use the "
            "shared libraries of version " SCOPIX_OSG_VERSION ".");
    else if (!library.empty() && library.find(viewerLibrary) != 0)
        sayOtherVersion(library);
}

} // namespace

extern "C" {

SCOPIX_HOOK void scopixHookFrame(void* viewer, double time) __asm__("_ZN9osgViewer10ViewerBase5frameEd");
SCOPIX_HOOK void
scopixHookTraversals(void* viewer) __asm__("_ZN9osgViewer10ViewerBase19renderingTraversalsEv");
SCOPIX_HOOK bool scopixHookViewerIdle(void* viewer) __asm__("_ZN9osgViewer6Viewer18checkNeedToDoFrameEv");
SCOPIX_HOOK bool
scopixHookCompositeIdle(void* viewer) __asm__("_ZN9osgViewer15CompositeViewer18checkNeedToDoFrameEv");

void scopixHookFrame(void* viewer, double time)
{
    static const auto real =
        reinterpret_cast<void (*)(void*, double)>(next("_ZN9osgViewer10ViewerBase5frameEd"));
    betweenFrames(viewer);
    const Nesting nesting;
    if (real)
        real(viewer, time);
}

void scopixHookTraversals(void* viewer)
{
    static const auto real =
        reinterpret_cast<void (*)(void*)>(next("_ZN9osgViewer10ViewerBase19renderingTraversalsEv"));
    betweenFrames(viewer);
    const Nesting nesting;
    if (real)
        real(viewer);
}

// A viewer that draws on demand asks this again and again instead.
bool scopixHookViewerIdle(void* viewer)
{
    static const auto real =
        reinterpret_cast<bool (*)(void*)>(next("_ZN9osgViewer6Viewer18checkNeedToDoFrameEv"));
    call(Module::instance().viewerIdle, viewer);
    return real && real(viewer);
}

bool scopixHookCompositeIdle(void* viewer)
{
    static const auto real =
        reinterpret_cast<bool (*)(void*)>(next("_ZN9osgViewer15CompositeViewer18checkNeedToDoFrameEv"));
    call(Module::instance().compositeViewerIdle, viewer);
    return real && real(viewer);
}
}
