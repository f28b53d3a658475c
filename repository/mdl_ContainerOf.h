#pragma once

#include "cls_ObjectCollections.h"

template <class T>
class mdl_MapString2ObjCow;
template <class K, class T>
class mdl_MapOfCowsRepository;
template <class E, class T>
class mdl_1DArrayList;

/// How a repository and its wrapper are stored, and the word under which scripts find the repository. Each
/// family specializes it once for each repository that it has, by one of the macros below.
template <class R>
struct mdl_ContainerOf;

/// The particulars of the repository class given last; used by the macros below, not by families.
#define MDL_CONTAINER_FULL(ContainerName, ContainerId, WrapperName, WrapperId, Word, ...)                    \
    template <>                                                                                              \
    struct mdl_ContainerOf<__VA_ARGS__>                                                                      \
    {                                                                                                        \
        static constexpr const char* containerName = ContainerName;                                          \
        static constexpr unsigned containerId = ContainerId;                                                 \
        static constexpr const char* wrapperName = WrapperName;                                              \
        static constexpr unsigned wrapperId = WrapperId;                                                     \
        static constexpr const char* word = Word;                                                            \
    };

/// Names the repository by name of the class `T`: stored name, class id, stored name and class id of the
/// wrapper (null and 0 if the model takes none), word.
#define MDL_CONTAINER(T, ContainerName, ContainerId, WrapperName, WrapperId, Word)                           \
    MDL_CONTAINER_FULL(ContainerName, ContainerId, WrapperName, WrapperId, Word, mdl_MapString2ObjCow<T>)

/// The same for the repository by number.
#define MDL_NUMBERED_CONTAINER(T, ContainerName, ContainerId, WrapperName, WrapperId, Word)                  \
    MDL_CONTAINER_FULL(ContainerName, ContainerId, WrapperName, WrapperId, Word,                             \
                       mdl_MapOfCowsRepository<int, T>)

/// The same for the repository by position.
#define MDL_ORDERED_CONTAINER(T, ContainerName, ContainerId, WrapperName, WrapperId, Word)                   \
    MDL_CONTAINER_FULL(ContainerName, ContainerId, WrapperName, WrapperId, Word,                             \
                       mdl_1DArrayList<cls_ElementHandle<T>, T>)
