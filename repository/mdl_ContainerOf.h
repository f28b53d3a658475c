#pragma once

/// How the repository of a family's objects and its wrapper are stored: names and class ids, and the word
/// under which scripts find the repository. Each family with a repository specializes it once, through
/// MDL_CONTAINER.
template <class T>
struct mdl_ContainerOf;

/// Names the repository by name of the class `T`: stored name, class id, stored name and class id of the
/// wrapper, word.
#define MDL_CONTAINER(T, ContainerName, ContainerId, WrapperName, WrapperId, Word)                           \
    template <>                                                                                              \
    struct mdl_ContainerOf<T>                                                                                \
    {                                                                                                        \
        static constexpr const char* containerName = ContainerName;                                          \
        static constexpr unsigned containerId = ContainerId;                                                 \
        static constexpr const char* wrapperName = WrapperName;                                              \
        static constexpr unsigned wrapperId = WrapperId;                                                     \
        static constexpr const char* word = Word;                                                            \
    };
