# The built-in models of the 3D view: our script writes them as OBJ, balsam makes scenes of them.

find_package(Python3 REQUIRED COMPONENTS Interpreter)

# Meshes of each model, one per material. balsam puts a line behind names that mean something to it.
set(kv_mesh_jet accent belly dark glass glow nose port skin starboard)
set(kv_mesh_cube dark edge face_back face_down face_front face_left face_right face_up)
set(kv_mesh_plane accent belly dark glass nose port skin starboard)
set(kv_mesh_spaceship accent belly dark glass glow nose port skin starboard)

# kv_add_models(target): scenes as ":/modelscenes/jet/Jet.qml" and so on; the OBJ files in objModel/ of the build folder.
function(kv_add_models target)
  set(obj_folder "${CMAKE_BINARY_DIR}/objModel")
  set(script "${PROJECT_SOURCE_DIR}/resources/models/make_models.py")
  set(models jet cube plane spaceship)
  set(written ${models})
  list(TRANSFORM written REPLACE "(.+)" "${obj_folder}/\\1.obj")
  add_custom_command(OUTPUT ${written}
    COMMAND Python3::Interpreter "${script}" "${obj_folder}"
    DEPENDS "${script}" COMMENT "Writing models" VERBATIM)

  set(scenes "${CMAKE_CURRENT_BINARY_DIR}/modelscenes")
  set(files)
  foreach(model ${models})
    string(SUBSTRING "${model}" 0 1 first)
    string(TOUPPER "${first}" first)
    string(SUBSTRING "${model}" 1 -1 rest)
    set(made "${scenes}/${model}/${first}${rest}.qml")
    foreach(mesh ${kv_mesh_${model}})
      list(APPEND made "${scenes}/${model}/meshes/${mesh}.mesh")
    endforeach()
    add_custom_command(OUTPUT ${made}
      COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen $<TARGET_FILE:Qt6::balsam>
        -o "${scenes}/${model}" "${obj_folder}/${model}.obj"
      DEPENDS "${obj_folder}/${model}.obj" COMMENT "Converting model ${model}" VERBATIM)
    list(APPEND files ${made})
  endforeach()
  qt_add_resources(${target} kv_modelscenes PREFIX "/modelscenes" BASE "${scenes}" FILES ${files})
endfunction()
