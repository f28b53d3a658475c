#include "app_Store.h"

#include "app_Error.h"
#include "app_File.h"
#include "app_Json.h"
#include "app_Progress.h"
#include "rom_StoreReader.h"
#include "rom_StoreWriter.h"

#include <algorithm>

namespace
{

constexpr std::size_t headLength = 4096;

bool EndsLikeJson(const std::string& path)
{
    std::string ending = path.size() < 5 ? "" : path.substr(path.size() - 5);
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return ending == ".json";
}

/// The name under which a store holds its model.
constexpr const char* rootName = "model";

} // namespace

ddr_ModelHandle app_ReadStore(const std::string& path)
{
    rom_StoreReader reader(path.c_str());
    const cls_ErasedHandle& stored = reader.ReadRoot(rootName, ddr_Model::TypeId());
    return cow_Restored<ddr_Model, cow_Virtual<ddr_Model>>(stored);
}

void app_WriteStore(const ddr_ModelHandle& model, const std::string& path, app_SaveMode mode)
{
    const bool isNew = mode == app_SaveMode::New;
    rom_StoreWriter writer(path.c_str(), isNew ? rom_SaveMode::Create : rom_SaveMode::Replace);
    writer.WriteRoot(rootName, ddr_Model::TypeId(), model.ConstGet());
    writer.Finish();
}

bool app_IsJsonFile(const std::string& path)
{
    if (EndsLikeJson(path))
        return true;
    const std::string head = app_ReadFile(path, headLength);
    const std::size_t first = head.find_first_not_of(" \t\r\n");
    return first != std::string::npos && (head[first] == '{' || head[first] == '[');
}

ddr_ModelHandle app_ReadModel(const std::string& path)
{
    return app_IsJsonFile(path) ? app_ReadJsonModel(app_ReadFile(path), path) : app_ReadStore(path);
}

ddr_ModelHandle app_ReadJsonModel(const std::string& text, const std::string& source)
{
    ddr_ModelHandle handle(new ddr_Model);
    ddr_Model& model = *handle.Get();
    app_Progress progress("reading " + source, static_cast<long>(text.size()));
    const auto takeObject =
        [&](const std::string& word, const std::string& name, const cls_Value& object, std::size_t reached)
    {
        app_InsertValue(model, word, name, object);
        progress.Reach(static_cast<long>(reached));
    };
    const auto takeRepository = [&](const std::string& word) { app_Repository(model, word); };
    app_ParseJsonModel(text, source, takeObject, takeRepository);
    return handle;
}

std::string app_WriteJsonModel(const ddr_Model& model)
{
    constexpr std::size_t indent = 4;
    app_Progress progress("writing", app_ObjectCount(model));
    std::string text = "{";
    std::string repositoryWord;
    app_ForEachObject(model,
                      [&](const app_Object& object)
                      {
                          if (object.repositoryWord != repositoryWord)
                          {
                              text += (repositoryWord.empty() ? "\n  " : "\n  },\n  ") +
                                      app_JsonText(object.repositoryWord) + ": {\n";
                              repositoryWord = object.repositoryWord;
                          }
                          else
                              text += ",\n";
                          text += "    " + app_JsonText(object.name) + ": " +
                                  app_WriteJson(object.description.Export(object.object),
                                                app_JsonLayout::Model, indent);
                          progress.Step();
                      });
    return text + (repositoryWord.empty() ? "}\n" : "\n  }\n}\n");
}
