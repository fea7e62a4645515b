<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="zh_CN">
<context>
    <name>Mirrix</name>
    <message>
        <source>枚举文件</source>
        <translation>Enumerando archivos</translation>
    </message>
    <message>
        <source>读取元数据</source>
        <translation>Leyendo metadatos</translation>
    </message>
    <message>
        <source>快速哈希</source>
        <translation>Hash rápido</translation>
    </message>
    <message>
        <source>完整哈希</source>
        <translation>Hash completo</translation>
    </message>
    <message>
        <source>相似内容比对</source>
        <translation>Comparación de contenido similar</translation>
    </message>
    <message>
        <source>前缀采样哈希</source>
        <translation>Hash del inicio del archivo</translation>
    </message>
    <message>
        <source>采样指纹哈希</source>
        <translation>Hash por muestras</translation>
    </message>
    <message>
        <source>图片感知哈希</source>
        <translation>Hash perceptual de imágenes</translation>
    </message>
    <message>
        <source>[%1] %2  已枚举 %3  已处理 %4/%5</source>
        <translation>[%1] %2  Enumerados: %3  Procesados: %4/%5</translation>
    </message>
    <message>
        <source>文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒</source>
        <translation>Archivos: %1 · Grupos de duplicados: %2 · Grupos de carpetas: %3 · Restantes: %4 · Recuperable: ~%5 · %6 s</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>查看操作日志</source>
        <translation>Ver el registro de operaciones</translation>
    </message>
    <message>
        <source>打开数据文件夹</source>
        <translation>Abrir la carpeta de datos</translation>
    </message>
    <message>
        <source>完整退出</source>
        <translation>Salir por completo</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>哈希工具</source>
        <translation>Herramienta de hash</translation>
    </message>
    <message>
        <source>选项…</source>
        <translation>Opciones…</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>关于 Mirrix</source>
        <translation>Acerca de Mirrix</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 零广告 · 图片哈希: %2</source>
        <translation>%1 · Local · Sin anuncios · Hash de imágenes: %2</translation>
    </message>
    <message>
        <source>① 选择位置 → ② 匹配规则 → ③ 预览并清理</source>
        <translation>① Ubicación → ② Reglas → ③ Vista previa y limpieza</translation>
    </message>
    <message>
        <source>选择一个路径开始查重</source>
        <translation>Elija una carpeta para empezar</translation>
    </message>
    <message>
        <source>选好后点击左侧「开始扫描」</source>
        <translation>Después haga clic en «Iniciar análisis» a la izquierda</translation>
    </message>
    <message>
        <source>配置匹配规则</source>
        <translation>Configurar las reglas de coincidencia</translation>
    </message>
    <message>
        <source>预览重复项并清理</source>
        <translation>Revisar los duplicados y limpiar</translation>
    </message>
    <message>
        <source>勾选要移除的副本，建议先备份再删除</source>
        <translation>Marque las copias que desea eliminar; si tiene dudas, haga antes una copia de seguridad</translation>
    </message>
    <message>
        <source>请选择要扫描的位置</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>配置规则后点击「开始扫描」</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>勾选重复项并进行清理</source>
        <translation>Marcar los duplicados y limpiar</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>请先勾选启用至少一个扫描位置。</source>
        <translation>Active al menos una ubicación de análisis.</translation>
    </message>
    <message>
        <source>扫描进行中：已锁定规则与位置页，请勿修改扫描参数。</source>
        <translation>Análisis en curso: reglas y ubicaciones bloqueadas.</translation>
    </message>
    <message>
        <source>确认开始扫描</source>
        <translation>Confirmar análisis</translation>
    </message>
    <message>
        <source>开始扫描</source>
        <translation>Iniciar análisis</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>不再显示此确认</source>
        <translation>No volver a mostrar</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 图片哈希: %2</source>
        <translation>%1 · Local · Hash de imágenes: %2</translation>
    </message>
    <message>
        <source>正在取消...</source>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>扫描完成 · 图片哈希后端: %1</source>
        <translation>Análisis completado · Motor de hash de imágenes: %1</translation>
    </message>
    <message>
        <source>位于回收站中</source>
        <translation>En la Papelera de reciclaje</translation>
    </message>
    <message>
        <source>位于备份文件夹中</source>
        <translation>En una carpeta de copias de seguridad</translation>
    </message>
    <message>
        <source>位于快照中</source>
        <translation>En una instantánea</translation>
    </message>
    <message>
        <source>未能读取 %1 项：%2</source>
        <translation>No legibles (%1): %2</translation>
    </message>
    <message>
        <source>扫描失败</source>
        <translation>Error en el análisis</translation>
    </message>
    <message>
        <source>便携模式</source>
        <translation>Modo portátil</translation>
    </message>
    <message>
        <source>标准模式</source>
        <translation>Modo estándar</translation>
    </message>
    <message>
        <source>程序仍在托盘运行。可通过托盘菜单一键完整退出。</source>
        <translation>Mirrix sigue activo en la bandeja del sistema. Use el menú de su icono para salir por completo.</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Mostrar la ventana principal</translation>
    </message>
    <message>
        <source>一键完整退出</source>
        <translation>Salir por completo</translation>
    </message>
    <message>
        <source>Mirrix · 重复文件查找与清理</source>
        <translation>Mirrix · Búsqueda y limpieza de archivos duplicados</translation>
    </message>
    <message>
        <source>重复文件清理</source>
        <translation>Limpieza de duplicados</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>选择位置</source>
        <translation>Ubicaciones</translation>
    </message>
    <message>
        <source>匹配规则</source>
        <translation>Reglas de coincidencia</translation>
    </message>
    <message>
        <source>预览清理</source>
        <translation>Vista previa y limpieza</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>扫描过程中发生未知错误</source>
        <translation>Se produjo un error desconocido durante el análisis</translation>
    </message>
    <message>
        <source>扫描已取消</source>
        <translation>Análisis cancelado</translation>
    </message>
    <message>
        <source>可移动磁盘</source>
        <translation>Disco extraíble</translation>
    </message>
    <message>
        <source>本地磁盘</source>
        <translation>Disco local</translation>
    </message>
    <message>
        <source>网络驱动器</source>
        <translation>Unidad de red</translation>
    </message>
    <message>
        <source>光驱</source>
        <translation>Unidad óptica</translation>
    </message>
    <message>
        <source>内存盘</source>
        <translation>Disco RAM</translation>
    </message>
    <message>
        <source>恢复失败: %1</source>
        <translation>No se pudo restaurar: %1</translation>
    </message>
    <message>
        <source>备份文件已损坏，未恢复: %1</source>
        <translation>La copia de seguridad está dañada; no se ha restaurado: %1</translation>
    </message>
    <message>
        <source>已恢复，但备份无法删除: %1</source>
        <translation>Restaurado, pero no se pudo eliminar la copia de seguridad: %1</translation>
    </message>
    <message>
        <source>备份索引无法写入: %1</source>
        <translation>No se pudo escribir el índice de copias de seguridad: %1</translation>
    </message>
    <message>
        <source>原路径已存在文件，已取消恢复: %1</source>
        <translation>Ya existe un archivo en la ruta original; restauración cancelada: %1</translation>
    </message>
    <message>
        <source>无法移动到备份目录: %1</source>
        <translation>No se pudo mover a la carpeta de copias de seguridad: %1</translation>
    </message>
    <message>
        <source>文件在扫描后已更改，已保留: %1</source>
        <translation>Cambió después del análisis, se conserva: %1</translation>
    </message>
    <message>
        <source>要保留的文件已更改，未处理: %1</source>
        <translation>El archivo que se debe conservar ha cambiado; esta copia no se procesó: %1</translation>
    </message>
    <message>
        <source>与要保留的文件可能是同一个文件，未处理: %1</source>
        <translation>Puede ser el mismo archivo que se debe conservar; sin procesar: %1</translation>
    </message>
    <message>
        <source>无法创建目标目录: %1</source>
        <translation>No se pudo crear la carpeta de destino: %1</translation>
    </message>
    <message>
        <source>目标已存在: %1</source>
        <translation>El destino ya existe: %1</translation>
    </message>
    <message>
        <source>链接路径已存在: %1</source>
        <translation>La ruta del enlace ya existe: %1</translation>
    </message>
    <message>
        <source>没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1</source>
        <translation>Sin permiso para crear enlaces simbólicos (active el modo de desarrollador o ejecute el programa como administrador): %1</translation>
    </message>
    <message>
        <source>无法删除: %1</source>
        <translation>No se pudo eliminar: %1</translation>
    </message>
    <message>
        <source>文件夹已不为空，或不允许删除: %1</source>
        <translation>La carpeta ya no está vacía o no se permite eliminarla: %1</translation>
    </message>
    <message>
        <source>无法移动: %1</source>
        <translation>No se pudo mover: %1</translation>
    </message>
    <message>
        <source>无法复制: %1</source>
        <translation>No se pudo copiar: %1</translation>
    </message>
    <message>
        <source>无法创建硬链接: %1</source>
        <translation>No se pudo crear el enlace físico: %1</translation>
    </message>
    <message>
        <source>无法创建符号链接: %1</source>
        <translation>No se pudo crear el enlace simbólico: %1</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>Archivo no encontrado: %1</translation>
    </message>
    <message>
        <source>链接目标不是可用的文件: %1</source>
        <translation>El destino del enlace no es un archivo utilizable: %1</translation>
    </message>
    <message>
        <source>原文件未能放回，可从备份中恢复: %1</source>
        <translation>No se pudo devolver el archivo a su lugar; se puede restaurar desde la copia de seguridad: %1</translation>
    </message>
    <message>
        <source>无法放入回收站，已保留: %1</source>
        <translation>No se pudo mover a la Papelera de reciclaje; archivo conservado: %1</translation>
    </message>
    <message>
        <source>无法写入清理记录: %1 (%2)</source>
        <translation>No se pudo escribir el registro de la limpieza: %1 (%2)</translation>
    </message>
    <message>
        <source>清理记录正被另一程序使用: %1</source>
        <translation>Otro programa está usando el registro de la limpieza: %1</translation>
    </message>
    <message>
        <source>清理记录已损坏，只读到完好部分: %1</source>
        <translation>El registro de la limpieza está dañado; solo se leyó la parte intacta: %1</translation>
    </message>
    <message>
        <source>无法读取清理记录（已损坏或来自另一台计算机）: %1</source>
        <translation>No se pudo leer el registro de la limpieza (dañado o de otro equipo): %1</translation>
    </message>
    <message>
        <source>无法重新生成，当时未与要保留的文件比较内容: %1</source>
        <translation>No se puede volver a crear; su contenido no se comparó con el archivo que se debe conservar: %1</translation>
    </message>
    <message>
        <source>无法重新生成，要保留的文件不存在或已更改: %1 (%2)</source>
        <translation>No se puede volver a crear; el archivo que se debe conservar no existe o ha cambiado: %1 (%2)</translation>
    </message>
    <message>
        <source>已不在回收站中，无法恢复: %1</source>
        <translation>Ya no está en la Papelera de reciclaje; no se puede restaurar: %1</translation>
    </message>
    <message>
        <source>文件已不在此处或已更改，未恢复: %1 (%2)</source>
        <translation>Ya no está allí o ha cambiado; no se ha restaurado: %1 (%2)</translation>
    </message>
    <message>
        <source>文件夹或磁盘不存在，未恢复: %1 (%2)</source>
        <translation>Falta la carpeta o la unidad; no se ha restaurado: %1 (%2)</translation>
    </message>
    <message>
        <source>已恢复，但原链接无法删除: %1</source>
        <translation>Restaurado, pero no se pudo eliminar el enlace: %1</translation>
    </message>
    <message>
        <source>已恢复，但无法还原修改时间或权限: %1</source>
        <translation>Restaurado, pero no se pudieron restablecer la fecha o los permisos: %1</translation>
    </message>
    <message>
        <source>批量移入回收站失败 (code %1, %2 个文件)</source>
        <translation>Error al enviar a la Papelera de reciclaje (código %1, archivos: %2)</translation>
    </message>
    <message>
        <source>未移入回收站，仍在原处: %1</source>
        <translation>No se envió a la Papelera de reciclaje, sigue en su lugar: %1</translation>
    </message>
    <message>
        <source>保留最新文件</source>
        <translation>Conservar el más reciente</translation>
    </message>
    <message>
        <source>保留最旧文件</source>
        <translation>Conservar el más antiguo</translation>
    </message>
    <message>
        <source>保留最上层目录</source>
        <translation>Conservar la ruta menos profunda</translation>
    </message>
    <message>
        <source>保留最深路径</source>
        <translation>Conservar la ruta más profunda</translation>
    </message>
    <message>
        <source>选择备份目录</source>
        <translation>Elegir la carpeta de copias de seguridad</translation>
    </message>
    <message>
        <source>高级选项（保留规则、备份等）</source>
        <translation>Opciones avanzadas (regla de conservación, copia de seguridad…)</translation>
    </message>
    <message>
        <source>保留规则</source>
        <translation>Regla de conservación</translation>
    </message>
    <message>
        <source>跳过隐藏文件</source>
        <translation>Omitir archivos ocultos</translation>
    </message>
    <message>
        <source>排除系统目录</source>
        <translation>Excluir carpetas del sistema</translation>
    </message>
    <message>
        <source>删除前自动备份</source>
        <translation>Copia de seguridad antes de eliminar</translation>
    </message>
    <message>
        <source>备份目录</source>
        <translation>Carpeta de copias de seguridad</translation>
    </message>
    <message>
        <source>选择要扫描的磁盘 / 分区</source>
        <translation>Unidades y particiones para analizar</translation>
    </message>
    <message>
        <source>勾选分区后加入扫描列表（不会立即开始扫描）。
系统目录仍会默认排除。建议慎选系统盘整盘扫描。</source>
        <translation>Marque las particiones que desea añadir a la lista de análisis (el análisis aún no empieza).
Las carpetas del sistema siguen excluidas. Piénselo bien antes de analizar toda la unidad del sistema.</translation>
    </message>
    <message>
        <source>加入扫描列表</source>
        <translation>Añadir a la lista de análisis</translation>
    </message>
    <message>
        <source>未勾选任何磁盘。</source>
        <translation>No hay unidades marcadas.</translation>
    </message>
    <message>
        <source>系统盘确认</source>
        <translation>¿Analizar la unidad del sistema?</translation>
    </message>
    <message>
        <source>您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。
是否加入扫描列表？</source>
        <translation>Ha marcado una unidad del sistema. Analizar una unidad completa lleva más tiempo; las carpetas del sistema siguen excluidas.
¿Añadirla a la lista de análisis?</translation>
    </message>
    <message>
        <source>确认添加</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>将 %1 个分区加入扫描列表（不会立即开始扫描）：
%2</source>
        <translation>Particiones que se añadirán a la lista de análisis (sin iniciar el análisis): %1
%2</translation>
    </message>
    <message>
        <source>未检测到可扫描的磁盘或分区。</source>
        <translation>No se encontraron unidades ni particiones para analizar.</translation>
    </message>
    <message>
        <source>选择要排除的文件夹</source>
        <translation>Elegir una carpeta para excluir</translation>
    </message>
    <message>
        <source>排除目录</source>
        <translation>Carpetas excluidas</translation>
    </message>
    <message>
        <source>+ 排除</source>
        <translation>+ Excluir</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>选择一个扫描时不进入的文件夹</source>
        <translation>Elegir una carpeta en la que no entrará el análisis</translation>
    </message>
    <message>
        <source>从排除目录中移除选中的文件夹</source>
        <translation>Quitar las carpetas seleccionadas de la lista de excluidas</translation>
    </message>
    <message>
        <source>可操作文件夹</source>
        <translation>Explorar carpetas</translation>
    </message>
    <message>
        <source>浏览文件夹，用右侧的 → 加入扫描位置；
也可以从资源管理器把文件夹拖入扫描列表。</source>
        <translation>Explore las carpetas y añádalas a las ubicaciones de análisis con el botón → de la derecha;
también puede arrastrar carpetas desde el Explorador a la lista de análisis.</translation>
    </message>
    <message>
        <source>将选中的文件夹加入扫描位置</source>
        <translation>Añadir las carpetas seleccionadas a las ubicaciones de análisis</translation>
    </message>
    <message>
        <source>选择要扫描的文件夹</source>
        <translation>Elegir una carpeta para analizar</translation>
    </message>
    <message>
        <source>每行一个扫描位置，状态列=启用/停用，已保护=不扫描。</source>
        <translation>Una ubicación por fila; Estado = activado/desactivado, Protegido = no se analiza.</translation>
    </message>
    <message>
        <source>+文件夹</source>
        <translation>+ Carpeta</translation>
    </message>
    <message>
        <source>+磁盘</source>
        <translation>+ Unidad</translation>
    </message>
    <message>
        <source>移除所选</source>
        <translation>Quitar seleccionadas</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Vaciar lista</translation>
    </message>
    <message>
        <source>选择一个文件夹加入扫描位置</source>
        <translation>Elegir una carpeta para añadirla a las ubicaciones de análisis</translation>
    </message>
    <message>
        <source>已包含</source>
        <translation>Incluido</translation>
    </message>
    <message>
        <source>🔒 已保护</source>
        <translation>🔒 Protegido</translation>
    </message>
    <message>
        <source>锁 否</source>
        <translation>No protegido</translation>
    </message>
    <message>
        <source>📂 是</source>
        <translation>📂 Sí</translation>
    </message>
    <message>
        <source>📂 否</source>
        <translation>📂 No</translation>
    </message>
    <message>
        <source>文件夹名称</source>
        <translation>Nombre de la carpeta</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>已保护</source>
        <translation>Protegido</translation>
    </message>
    <message>
        <source>扫描子目录</source>
        <translation>Subcarpetas</translation>
    </message>
    <message>
        <source>查找重复</source>
        <translation>Buscar duplicados</translation>
    </message>
    <message>
        <source>显示其余文件</source>
        <translation>Mostrar archivos restantes</translation>
    </message>
    <message>
        <source>🔍 查找重复</source>
        <translation>🔍 Duplicados</translation>
    </message>
    <message>
        <source>📄 相同文件名</source>
        <translation>📄 Mismo nombre de archivo</translation>
    </message>
    <message>
        <source>🗑 空文件</source>
        <translation>🗑 Archivos vacíos</translation>
    </message>
    <message>
        <source>%1
现在找不到这个文件夹。</source>
        <translation>%1
No se encuentra esta carpeta en este momento.</translation>
    </message>
    <message>
        <source>扫描位置</source>
        <translation>Ubicaciones de análisis</translation>
    </message>
    <message>
        <source>桌面</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>下载</source>
        <translation>Descargas</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>音乐</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>视频</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>快捷位置</source>
        <translation>Accesos rápidos</translation>
    </message>
    <message>
        <source>本地磁盘 (%1)</source>
        <translation>Disco local (%1)</translation>
    </message>
    <message>
        <source>扫描进行中，批量操作已暂停。</source>
        <translation>Análisis en curso; acciones por lotes en pausa.</translation>
    </message>
    <message>
        <source>「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。</source>
        <translation>«Carpetas duplicadas» es de solo lectura; elimine o exporte desde la pestaña «Archivos duplicados».</translation>
    </message>
    <message>
        <source>「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。</source>
        <translation>«Archivos restantes» es de solo lectura; marque los archivos en la pestaña «Archivos duplicados».</translation>
    </message>
    <message>
        <source>扫描完成后，在左侧勾选重复项再执行批量操作。</source>
        <translation>Tras el análisis, marque los duplicados a la izquierda y elija una acción por lotes.</translation>
    </message>
    <message>
        <source>已勾选 %1 个文件</source>
        <translation>Archivos marcados: %1</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>文件夹组 #%1</source>
        <translation>Grupo de carpetas n.º %1</translation>
    </message>
    <message>
        <source>文件夹路径</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>文件数</source>
        <translation>Número de archivos</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>容量未知</source>
        <translation>Capacidad desconocida</translation>
    </message>
    <message>
        <source>%1 / 可用 %2</source>
        <translation>%1 / %2 libres</translation>
    </message>
    <message>
        <source>无标签</source>
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>  ·系统盘</source>
        <translation>  ·Unidad del sistema</translation>
    </message>
    <message>
        <source>文件已不存在或无法访问</source>
        <translation>El archivo ya no existe o no es accesible</translation>
    </message>
    <message>
        <source>图片过大，无法预览</source>
        <translation>Imagen demasiado grande para la vista previa</translation>
    </message>
    <message>
        <source>无法读取此图片</source>
        <translation>No se puede leer esta imagen</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>修改时间</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Marcado</translation>
    </message>
    <message>
        <source>文件 / 分组</source>
        <translation>Archivo / grupo</translation>
    </message>
    <message>
        <source>分组 #%1  (%2 个文件, 可回收 %3)</source>
        <translation>Grupo n.º %1  (archivos: %2, recuperable: %3)</translation>
    </message>
    <message>
        <source>本组所有文件均已勾选，处理后将不保留任何副本。</source>
        <translation>Todos los archivos de este grupo están marcados; no se conservará ninguno.</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2
修改: %3
后缀: %4</source>
        <translation>Ruta: %1
Tamaño: %2
Modificado: %3
Extensión: %4</translation>
    </message>
    <message>
        <source>
尺寸: %1 × %2</source>
        <translation>
Dimensiones: %1 × %2</translation>
    </message>
    <message>
        <source>
相机: %1 %2</source>
        <translation>
Cámara: %1 %2</translation>
    </message>
    <message>
        <source>
拍摄: %1</source>
        <translation>
Fecha de captura: %1</translation>
    </message>
    <message>
        <source>
艺术家: %1</source>
        <translation>
Artista: %1</translation>
    </message>
    <message>
        <source>
标题: %1</source>
        <translation>
Título: %1</translation>
    </message>
    <message>
        <source>常规模式</source>
        <translation>Modo general</translation>
    </message>
    <message>
        <source>图片模式</source>
        <translation>Modo de imagen</translation>
    </message>
    <message>
        <source>音频模式</source>
        <translation>Modo de audio</translation>
    </message>
    <message>
        <source>视频模式</source>
        <translation>Modo de vídeo</translation>
    </message>
    <message>
        <source>完全相同匹配</source>
        <translation>Coincidencia exacta</translation>
    </message>
    <message>
        <source>非常近似匹配</source>
        <translation>Coincidencia muy cercana</translation>
    </message>
    <message>
        <source>近似匹配</source>
        <translation>Coincidencia aproximada</translation>
    </message>
    <message>
        <source>相似匹配</source>
        <translation>Similar</translation>
    </message>
    <message>
        <source>宽松相似</source>
        <translation>Similitud baja</translation>
    </message>
    <message>
        <source>采样指纹（多点哈希）</source>
        <translation>Huella por muestras (hash en varios puntos)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 2 分钟采样）</source>
        <translation>Aproximada (muestra inicial, ≈2 min)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 30 秒采样）</source>
        <translation>Aproximada (muestra inicial, ≈30 s)</translation>
    </message>
    <message>
        <source>全文件精确哈希</source>
        <translation>Hash exacto del archivo completo</translation>
    </message>
    <message>
        <source>仅按标签匹配</source>
        <translation>Solo por etiquetas</translation>
    </message>
    <message>
        <source>开头采样哈希</source>
        <translation>Hash de la muestra inicial</translation>
    </message>
    <message>
        <source>全文件多点哈希（较慢）</source>
        <translation>Hash del archivo completo en varios puntos (más lento)</translation>
    </message>
    <message>
        <source>仅显示</source>
        <translation>Solo mostrar</translation>
    </message>
    <message>
        <source>必须匹配</source>
        <translation>Debe coincidir</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>不限</source>
        <translation>Sin límite</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>• 图像相似度：%1</source>
        <translation>• Similitud de imágenes: %1</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>翻转</source>
        <translation>Volteo</translation>
    </message>
    <message>
        <source>• 变体：%1</source>
        <translation>• Variantes: %1</translation>
    </message>
    <message>
        <source>• 匹配：相同内容（字节级）</source>
        <translation>• Coincidencia: mismo contenido (byte a byte)</translation>
    </message>
    <message>
        <source>• 匹配：相似内容（采样一致 ≥ %1%）</source>
        <translation>• Coincidencia: contenido similar (muestras iguales ≥ %1 %)</translation>
    </message>
    <message>
        <source>• 匹配：忽略内容（名称/大小/日期规则）</source>
        <translation>• Coincidencia: sin contenido (reglas de nombre, tamaño y fecha)</translation>
    </message>
    <message>
        <source>• 音频比对：%1</source>
        <translation>• Comparación de audio: %1</translation>
    </message>
    <message>
        <source>• 视频比对：%1</source>
        <translation>• Comparación de vídeo: %1</translation>
    </message>
    <message>
        <source>• 扫描位置：%1</source>
        <translation>• Ubicaciones de análisis: %1</translation>
    </message>
    <message>
        <source>    … 另有 %1 个</source>
        <translation>    … y %1 más</translation>
    </message>
    <message>
        <source>• 排除目录：%1</source>
        <translation>• Carpetas excluidas: %1</translation>
    </message>
    <message>
        <source>• 大小限制：%1 ~ %2</source>
        <translation>• Límites de tamaño: %1 – %2</translation>
    </message>
    <message>
        <source>• 包含扩展名：%1</source>
        <translation>• Extensiones incluidas: %1</translation>
    </message>
    <message>
        <source>• 排除扩展名：%1</source>
        <translation>• Extensiones excluidas: %1</translation>
    </message>
    <message>
        <source>隐藏文件</source>
        <translation>Archivos ocultos</translation>
    </message>
    <message>
        <source>系统目录</source>
        <translation>Carpetas del sistema</translation>
    </message>
    <message>
        <source>• 跳过：%1</source>
        <translation>• Omitir: %1</translation>
    </message>
    <message>
        <source>请确认以下扫描设置：</source>
        <translation>Confirme la configuración del análisis:</translation>
    </message>
    <message>
        <source>• 模式：%1</source>
        <translation>• Modo: %1</translation>
    </message>
    <message>
        <source>扫描在本地执行，文件不会上传到网络。</source>
        <translation>El análisis es local; los archivos no se envían a la red.</translation>
    </message>
    <message>
        <source>拍摄时间</source>
        <translation>Fecha de captura</translation>
    </message>
    <message>
        <source>相机品牌</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>相机型号</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>图片描述</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>用户注释</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>镜头型号</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>感光度</source>
        <translation>Sensibilidad ISO</translation>
    </message>
    <message>
        <source>光圈值</source>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>曝光时间</source>
        <translation>Tiempo de exposición</translation>
    </message>
    <message>
        <source>焦距</source>
        <translation>Distancia focal</translation>
    </message>
    <message>
        <source>处理软件</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>艺术家</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>专辑</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>音轨号</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>年代</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>流派</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>歌词作者</source>
        <translation>Letrista</translation>
    </message>
    <message>
        <source>比特率</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>Frecuencia de muestreo</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>导演</source>
        <translation>Director</translation>
    </message>
    <message>
        <source>批量操作</source>
        <translation>Acciones por lotes</translation>
    </message>
    <message>
        <source>按规则自动勾选</source>
        <translation>Marcar según la regla</translation>
    </message>
    <message>
        <source>全选重复项</source>
        <translation>Marcar todos los duplicados</translation>
    </message>
    <message>
        <source>反选</source>
        <translation>Invertir marcas</translation>
    </message>
    <message>
        <source>清空结果</source>
        <translation>Vaciar resultados</translation>
    </message>
    <message>
        <source>移动到备份文件夹</source>
        <translation>Mover a la copia de seguridad</translation>
    </message>
    <message>
        <source>删除所选</source>
        <translation>Eliminar marcados</translation>
    </message>
    <message>
        <source>导出…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>文件预览</source>
        <translation>Vista previa del archivo</translation>
    </message>
    <message>
        <source>选择文件以预览</source>
        <translation>Seleccione un archivo para ver la vista previa</translation>
    </message>
    <message>
        <source>文件夹: %1</source>
        <translation>Carpeta: %1</translation>
    </message>
    <message>
        <source>无图像预览
%1</source>
        <translation>Sin vista previa de imagen
%1</translation>
    </message>
    <message>
        <source>在资源管理器中打开</source>
        <translation>Abrir en el Explorador</translation>
    </message>
    <message>
        <source>打开文件</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>Abrir la carpeta contenedora</translation>
    </message>
    <message>
        <source>复制路径</source>
        <translation>Copiar ruta</translation>
    </message>
    <message>
        <source>复制文件夹路径</source>
        <translation>Copiar ruta de la carpeta</translation>
    </message>
    <message>
        <source>尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。</source>
        <translation>Aún no hay ningún análisis. Elija un modo, añada carpetas y haga clic en «Iniciar análisis».</translation>
    </message>
    <message>
        <source>视图：</source>
        <translation>Vista:</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>重复文件</source>
        <translation>Archivos duplicados</translation>
    </message>
    <message>
        <source>重复文件夹</source>
        <translation>Carpetas duplicadas</translation>
    </message>
    <message>
        <source>其余 / 唯一文件</source>
        <translation>Archivos restantes / únicos</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>全部展开</source>
        <translation>Expandir todo</translation>
    </message>
    <message>
        <source>全部折叠</source>
        <translation>Contraer todo</translation>
    </message>
    <message>
        <source>对比图片 (选 2 个)</source>
        <translation>Comparar imágenes (seleccione 2)</translation>
    </message>
    <message>
        <source>全选本组重复项</source>
        <translation>Marcar todos los duplicados del grupo</translation>
    </message>
    <message>
        <source>音频文件匹配配置</source>
        <translation>Coincidencia de archivos de audio</translation>
    </message>
    <message>
        <source>音频指纹基于采样，并非 Chromaprint 级别。</source>
        <translation>La huella de audio se basa en muestras; no tiene la precisión de Chromaprint.</translation>
    </message>
    <message>
        <source> 毫秒</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>音频文件标签</source>
        <translation>Etiquetas de audio</translation>
    </message>
    <message>
        <source>文件类型</source>
        <translation>Tipos de archivo</translation>
    </message>
    <message>
        <source>扩展名</source>
        <translation>Extensiones</translation>
    </message>
    <message>
        <source>使用当前模式的扩展名</source>
        <translation>Usar las extensiones del modo actual</translation>
    </message>
    <message>
        <source>勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。</source>
        <translation>Marcado: se analizan las extensiones del modo actual; sin marcar: solo las de la lista «Incluido».</translation>
    </message>
    <message>
        <source>已排除</source>
        <translation>Excluido</translation>
    </message>
    <message>
        <source>例如：jpg, png</source>
        <translation>Por ejemplo: jpg, png</translation>
    </message>
    <message>
        <source>用逗号、分号或空格分隔；* 或 *.* 表示全部</source>
        <translation>Separadas por comas, puntos y comas o espacios; * o *.* significa todas</translation>
    </message>
    <message>
        <source>图片模式包含更多 RAW 格式</source>
        <translation>Más formatos RAW en el modo de imagen</translation>
    </message>
    <message>
        <source>图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；
raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。</source>
        <translation>En el modo de imagen, analizar también archivos RAW de cámara como arw, dng, rw2, orf y srw;
raw, cr2 y nef se analizan siempre. Solo tiene efecto si la lista «Incluido» está vacía.</translation>
    </message>
    <message>
        <source>文件大小</source>
        <translation>Tamaño del archivo</translation>
    </message>
    <message>
        <source>不限大小</source>
        <translation>Cualquier tamaño</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>任意日期</source>
        <translation>Cualquier fecha</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>Fecha de modificación</translation>
    </message>
    <message>
        <source>从这一天开始</source>
        <translation>A partir de este día</translation>
    </message>
    <message>
        <source>到这一天为止（含当天）</source>
        <translation>Hasta este día inclusive</translation>
    </message>
    <message>
        <source>更多判断重复的选项</source>
        <translation>Más criterios de duplicado</translation>
    </message>
    <message>
        <source>内容匹配</source>
        <translation>Comparación del contenido</translation>
    </message>
    <message>
        <source>相同内容</source>
        <translation>Mismo contenido</translation>
    </message>
    <message>
        <source>相似内容</source>
        <translation>Contenido similar</translation>
    </message>
    <message>
        <source>忽略内容</source>
        <translation>Ignorar contenido</translation>
    </message>
    <message>
        <source>以下模式互斥：
• 相同内容 = 逐字节一致（默认）
• 相似内容 = 字节近似匹配
• 忽略内容 = 仅按元数据规则</source>
        <translation>Modos excluyentes:
• Mismo contenido = byte a byte (predeterminado)
• Contenido similar = comparación aproximada de bytes
• Ignorar contenido = solo reglas de metadatos</translation>
    </message>
    <message>
        <source>采样一致的最低比例</source>
        <translation>Proporción mínima de muestras iguales</translation>
    </message>
    <message>
        <source>不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。</source>
        <translation>No lee el contenido de los archivos; agrupa según los criterios de duplicado siguientes (nombre, tamaño, fecha).</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>相同文件名</source>
        <translation>Mismo nombre de archivo</translation>
    </message>
    <message>
        <source>相同文件拓展名</source>
        <translation>Misma extensión</translation>
    </message>
    <message>
        <source>相似文件名</source>
        <translation>Nombres de archivo similares</translation>
    </message>
    <message>
        <source>忽略文件名中「副本」字样</source>
        <translation>Ignorar «Copy», «(2)», etc. en los nombres de archivo</translation>
    </message>
    <message>
        <source>包括其他语言</source>
        <translation>también en otros idiomas</translation>
    </message>
    <message>
        <source>也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”</source>
        <translation>Ignora también lo que los sistemas y gestores de archivos en otros idiomas añaden al nombre de las copias, como «- Kopie» o «(otra copia)»</translation>
    </message>
    <message>
        <source>相同文件大小</source>
        <translation>Mismo tamaño de archivo</translation>
    </message>
    <message>
        <source>容差</source>
        <translation>Tolerancia</translation>
    </message>
    <message>
        <source>容差单位</source>
        <translation>Unidad de tolerancia</translation>
    </message>
    <message>
        <source>相同创建日期</source>
        <translation>Misma fecha de creación</translation>
    </message>
    <message>
        <source>仅匹配日期</source>
        <translation>Solo la fecha</translation>
    </message>
    <message>
        <source>相同修改日期</source>
        <translation>Misma fecha de modificación</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>相同磁盘</source>
        <translation>Misma unidad</translation>
    </message>
    <message>
        <source>文件夹与路径</source>
        <translation>Carpetas y rutas</translation>
    </message>
    <message>
        <source>相同的文件夹名称</source>
        <translation>Mismo nombre de carpeta</translation>
    </message>
    <message>
        <source>匹配完整路径</source>
        <translation>Misma ruta completa</translation>
    </message>
    <message>
        <source>匹配文件夹路径深度</source>
        <translation>Misma profundidad de carpeta</translation>
    </message>
    <message>
        <source>匹配扫描位置以下路径</source>
        <translation>Misma ruta bajo la ubicación de análisis</translation>
    </message>
    <message>
        <source>忽略在同一文件夹的重复组别</source>
        <translation>Ignorar grupos de duplicados de una misma carpeta</translation>
    </message>
    <message>
        <source>文本匹配选项</source>
        <translation>Opciones de comparación de texto</translation>
    </message>
    <message>
        <source>大小写敏感</source>
        <translation>Distinguir mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>相似文本 - 容差</source>
        <translation>Tolerancia de texto similar</translation>
    </message>
    <message>
        <source>相似文件名之间最多相差的字符数</source>
        <translation>Número de caracteres en que pueden diferir los nombres de archivo similares</translation>
    </message>
    <message>
        <source>图片匹配配置</source>
        <translation>Coincidencia de imágenes</translation>
    </message>
    <message>
        <source>匹配RAW图像时使用内嵌JPG图像（较快）</source>
        <translation>Usar el JPEG incrustado en los archivos RAW (más rápido)</translation>
    </message>
    <message>
        <source>性能</source>
        <translation>Rendimiento</translation>
    </message>
    <message>
        <source>使用图片特征值缓存</source>
        <translation>Usar la caché de características de imagen</translation>
    </message>
    <message>
        <source>图片标签</source>
        <translation>Etiquetas de imagen</translation>
    </message>
    <message>
        <source>匹配精度</source>
        <translation>Precisión</translation>
    </message>
    <message>
        <source>图像相似度</source>
        <translation>Similitud de imágenes</translation>
    </message>
    <message>
        <source>尺寸约束</source>
        <translation>Restricciones de dimensiones</translation>
    </message>
    <message>
        <source>相同尺寸</source>
        <translation>Mismas dimensiones</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>Relación de aspecto</translation>
    </message>
    <message>
        <source>相同长宽比</source>
        <translation>Misma relación de aspecto</translation>
    </message>
    <message>
        <source>变换匹配</source>
        <translation>Transformaciones</translation>
    </message>
    <message>
        <source>查找旋转过的</source>
        <translation>Buscar imágenes giradas</translation>
    </message>
    <message>
        <source>查找翻转过的</source>
        <translation>Buscar imágenes volteadas</translation>
    </message>
    <message>
        <source>同时要求颜色分布（直方图）一致</source>
        <translation>Exigir también la misma distribución de colores</translation>
    </message>
    <message>
        <source>时间分组</source>
        <translation>Agrupación por hora</translation>
    </message>
    <message>
        <source>按摄制时间分组</source>
        <translation>Agrupar por hora de captura</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> s</translation>
    </message>
    <message>
        <source>摄制时间最多相差</source>
        <translation>Diferencia máxima entre capturas</translation>
    </message>
    <message>
        <source>GPS分组</source>
        <translation>Agrupación por GPS</translation>
    </message>
    <message>
        <source>按GPS地理位置分组</source>
        <translation>Agrupar por ubicación GPS</translation>
    </message>
    <message>
        <source>拍摄地点最多相距</source>
        <translation>Distancia máxima entre lugares</translation>
    </message>
    <message>
        <source>匹配方式</source>
        <translation>Método de comparación</translation>
    </message>
    <message>
        <source>仅按标签匹配时，请至少将一个标签设为「必须匹配」</source>
        <translation>Para comparar solo por etiquetas, establezca al menos una etiqueta en «Debe coincidir»</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>匹配时长</source>
        <translation>Misma duración</translation>
    </message>
    <message>
        <source>忽略指向同一文件的硬链接</source>
        <translation>Ignorar enlaces físicos al mismo archivo</translation>
    </message>
    <message>
        <source>硬链接只是同一份数据的另一个名称，移除它不会释放空间。</source>
        <translation>Un enlace físico es otro nombre de los mismos datos; eliminarlo no libera espacio.</translation>
    </message>
    <message>
        <source>标签</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>匹配</source>
        <translation>Coincidencia</translation>
    </message>
    <message>
        <source>勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组</source>
        <translation>Marcado = se comparan las etiquetas; sin marcar = se ignoran las de este grupo</translation>
    </message>
    <message>
        <source>+ 添加</source>
        <translation>+ Añadir</translation>
    </message>
    <message>
        <source>视频匹配配置</source>
        <translation>Coincidencia de vídeos</translation>
    </message>
    <message>
        <source>字节采样近似比对，并非逐帧视频指纹。</source>
        <translation>Comparación aproximada por muestras de bytes, no fotograma a fotograma.</translation>
    </message>
    <message>
        <source>时:分:秒.毫秒</source>
        <translation>Horas:minutos:segundos.milisegundos</translation>
    </message>
    <message>
        <source>视频文件标签</source>
        <translation>Etiquetas de vídeo</translation>
    </message>
    <message>
        <source>已复制 %1 个文件</source>
        <translation>Archivos copiados: %1</translation>
    </message>
    <message>
        <source>无法写入文件。</source>
        <translation>No se puede escribir el archivo.</translation>
    </message>
    <message>
        <source>无法写入脚本。</source>
        <translation>No se puede escribir el script.</translation>
    </message>
    <message>
        <source>未知导出格式。</source>
        <translation>Formato de exportación desconocido.</translation>
    </message>
    <message>
        <source>批处理脚本无法准确指明该文件，已写为注释: %1</source>
        <translation>Un script por lotes no puede nombrar este archivo con exactitud; escrito como comentario: %1</translation>
    </message>
    <message>
        <source>Mirrix 重复文件扫描报告</source>
        <translation>Informe de análisis de duplicados de Mirrix</translation>
    </message>
    <message>
        <source>生成时间: %1</source>
        <translation>Generado: %1</translation>
    </message>
    <message>
        <source>扫描模式: %1</source>
        <translation>Modo de análisis: %1</translation>
    </message>
    <message>
        <source>范围: 仅已勾选文件</source>
        <translation>Alcance: solo archivos marcados</translation>
    </message>
    <message>
        <source>说明: 路径已脱敏（用户名已隐藏）</source>
        <translation>Nota: rutas anonimizadas (nombre de usuario oculto)</translation>
    </message>
    <message>
        <source>[组 %1]</source>
        <translation>[Grupo %1]</translation>
    </message>
    <message>
        <source> 键: %1</source>
        <translation> Clave: %1</translation>
    </message>
    <message>
        <source>  (%1 个文件)</source>
        <translation>  (archivos: %1)</translation>
    </message>
    <message>
        <source>
部分失败：
</source>
        <translation>
Errores:
</translation>
    </message>
    <message>
        <source>已按规则自动勾选待处理文件</source>
        <translation>Archivos marcados automáticamente según la regla</translation>
    </message>
    <message>
        <source>已勾选各组重复项（默认保留每组第一个）</source>
        <translation>Duplicados marcados en cada grupo (se conserva el primero de forma predeterminada)</translation>
    </message>
    <message>
        <source>已反选</source>
        <translation>Marcas invertidas</translation>
    </message>
    <message>
        <source>正在更新勾选…</source>
        <translation>Actualizando las marcas…</translation>
    </message>
    <message>
        <source>已停止，其余文件未处理</source>
        <translation>Detenido; los demás archivos no se procesaron</translation>
    </message>
    <message>
        <source>请先勾选要处理的文件。</source>
        <translation>Marque primero los archivos que desea procesar.</translation>
    </message>
    <message>
        <source>将把 %1 个文件移动到备份目录：
%2
是否继续？</source>
        <translation>Mover los archivos (%1) a la carpeta de copias de seguridad:
%2
¿Continuar?</translation>
    </message>
    <message>
        <source>确认备份移动</source>
        <translation>Confirmar el traslado a la copia de seguridad</translation>
    </message>
    <message>
        <source>正在备份移动文件… (%1/%2)</source>
        <translation>Moviendo a la copia de seguridad… (%1/%2)</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>已备份移动 %1 个文件。%2
请重新扫描以刷新结果。</source>
        <translation>Archivos movidos a la copia de seguridad: %1. %2
Repita el análisis para actualizar.</translation>
    </message>
    <message>
        <source>请先勾选要删除的文件。</source>
        <translation>Marque primero los archivos que desea eliminar.</translation>
    </message>
    <message>
        <source>正在备份并移除文件… (%1/%2)</source>
        <translation>Haciendo copia de seguridad y eliminando… (%1/%2)</translation>
    </message>
    <message>
        <source>备份警告</source>
        <translation>Advertencia de copia de seguridad</translation>
    </message>
    <message>
        <source>部分文件备份失败：
%1</source>
        <translation>No se pudo hacer copia de seguridad de algunos archivos:
%1</translation>
    </message>
    <message>
        <source>已备份并移除 %1 个文件。请重新扫描以刷新结果。</source>
        <translation>Archivos eliminados tras la copia de seguridad: %1. Repita el análisis para actualizar.</translation>
    </message>
    <message>
        <source>永久删除确认</source>
        <translation>Confirmar eliminación permanente</translation>
    </message>
    <message>
        <source>即将永久删除 %1 个文件，此操作不可撤销。是否继续？</source>
        <translation>Archivos que se eliminarán de forma permanente: %1. Esta acción no se puede deshacer. ¿Continuar?</translation>
    </message>
    <message>
        <source>正在移除文件… (%1/%2)</source>
        <translation>Eliminando archivos… (%1/%2)</translation>
    </message>
    <message>
        <source>请重新扫描以刷新结果。</source>
        <translation>Repita el análisis para actualizar los resultados.</translation>
    </message>
    <message>
        <source>已处理 %1 个文件。%2</source>
        <translation>Archivos procesados: %1. %2</translation>
    </message>
    <message>
        <source>正在读取备份索引…</source>
        <translation>Leyendo el índice de copias de seguridad…</translation>
    </message>
    <message>
        <source>备份索引为空。</source>
        <translation>El índice de copias de seguridad está vacío.</translation>
    </message>
    <message>
        <source>确认恢复</source>
        <translation>Confirmar restauración</translation>
    </message>
    <message>
        <source>将恢复：
%1</source>
        <translation>Se restaurará:
%1</translation>
    </message>
    <message>
        <source>正在恢复文件… (%1/%2)</source>
        <translation>Restaurando archivos… (%1/%2)</translation>
    </message>
    <message>
        <source>已恢复 %1 个文件。</source>
        <translation>Archivos restaurados: %1.</translation>
    </message>
    <message>
        <source>已再次移除 %1 个文件。</source>
        <translation>Archivos eliminados de nuevo: %1.</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>文件已恢复。</source>
        <translation>Archivo restaurado.</translation>
    </message>
    <message>
        <source>快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。</source>
        <translation>Búsqueda y limpieza rápidas y seguras de archivos duplicados. Modos: contenido general, imágenes similares, huella de audio y miniaturas de vídeo.</translation>
    </message>
    <message>
        <source>便携模式（数据位于程序旁的 \Data）</source>
        <translation>Modo portátil (datos en \Data, junto al programa)</translation>
    </message>
    <message>
        <source>标准模式（数据位于用户 AppData）</source>
        <translation>Modo estándar (datos en AppData del usuario)</translation>
    </message>
    <message>
        <source>版本 %1 · %2 · %3</source>
        <translation>Versión %1 · %2 · %3</translation>
    </message>
    <message>
        <source>数据文件夹：%1</source>
        <translation>Carpeta de datos: %1</translation>
    </message>
    <message>
        <source>开源致谢</source>
        <translation>Agradecimientos de código abierto</translation>
    </message>
    <message>
        <source>库</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>许可</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>CSV 清单 (.csv)</source>
        <translation>Lista CSV (.csv)</translation>
    </message>
    <message>
        <source>文本清单 (.txt)</source>
        <translation>Lista de texto (.txt)</translation>
    </message>
    <message>
        <source>复制文件到文件夹</source>
        <translation>Copiar archivos a una carpeta</translation>
    </message>
    <message>
        <source>生成批处理脚本 (.bat)</source>
        <translation>Generar script por lotes (.bat)</translation>
    </message>
    <message>
        <source>文本 (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>批处理 (*.bat)</source>
        <translation>Script por lotes (*.bat)</translation>
    </message>
    <message>
        <source>选择目标文件夹</source>
        <translation>Elegir carpeta de destino</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>导出扫描结果</source>
        <translation>Exportar los resultados del análisis</translation>
    </message>
    <message>
        <source>导出格式</source>
        <translation>Formato de exportación</translation>
    </message>
    <message>
        <source>运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”</source>
        <translation>Al ejecutar el script se eliminan todos los archivos que contiene, incluidos los que se deben conservar; para eliminar solo los archivos marcados, active «Exportar solo los archivos marcados»</translation>
    </message>
    <message>
        <source>输出路径：</source>
        <translation>Ruta de salida:</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>仅导出已勾选的文件</source>
        <translation>Exportar solo los archivos marcados</translation>
    </message>
    <message>
        <source>包含分组键与修改时间</source>
        <translation>Incluir la clave de grupo y la fecha de modificación</translation>
    </message>
    <message>
        <source>路径脱敏（隐藏用户名，便于分享）</source>
        <translation>Anonimizar rutas (ocultar el nombre de usuario)</translation>
    </message>
    <message>
        <source>脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件</source>
        <translation>Un script anonimizado es solo para lectura: no elimina los archivos cuya ruta oculta el nombre de usuario</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Deteniendo…</translation>
    </message>
    <message>
        <source>正在处理</source>
        <translation>Procesando</translation>
    </message>
    <message>
        <source>完成当前文件后停止</source>
        <translation>Se detiene al terminar el archivo actual</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>移入回收站（可恢复）</source>
        <translation>Mover a la Papelera de reciclaje</translation>
    </message>
    <message>
        <source>永久删除</source>
        <translation>Eliminar de forma permanente</translation>
    </message>
    <message>
        <source>移动到指定文件夹</source>
        <translation>Mover a una carpeta</translation>
    </message>
    <message>
        <source>删除后创建符号链接</source>
        <translation>Eliminar y crear un enlace simbólico</translation>
    </message>
    <message>
        <source>删除后创建硬链接</source>
        <translation>Eliminar y crear un enlace físico</translation>
    </message>
    <message>
        <source>文件移除</source>
        <translation>Eliminar archivos</translation>
    </message>
    <message>
        <source>即将处理 %1 个文件。请选择移除方式：</source>
        <translation>Archivos que se procesarán: %1. Elija cómo eliminarlos:</translation>
    </message>
    <message>
        <source>移除方式</source>
        <translation>Modo de eliminación</translation>
    </message>
    <message>
        <source>目标文件夹：</source>
        <translation>Carpeta de destino:</translation>
    </message>
    <message>
        <source>链接目标：</source>
        <translation>Destino del enlace:</translation>
    </message>
    <message>
        <source>保留的文件路径（用于创建链接）</source>
        <translation>Archivo que se conserva (para los enlaces)</translation>
    </message>
    <message>
        <source>先备份再创建链接时可留空：每个链接指向本组中未勾选的文件</source>
        <translation>Puede quedar vacío si antes se hace copia de seguridad: cada enlace apunta al archivo sin marcar de su grupo</translation>
    </message>
    <message>
        <source>移除前先备份</source>
        <translation>Copia de seguridad antes de eliminar</translation>
    </message>
    <message>
        <source>哈希值工具 - Mirrix</source>
        <translation>Herramienta de hash - Mirrix</translation>
    </message>
    <message>
        <source>+ 选择文件</source>
        <translation>+ Elegir archivos</translation>
    </message>
    <message>
        <source>+ 选择文件夹</source>
        <translation>+ Elegir carpeta</translation>
    </message>
    <message>
        <source>重新计算</source>
        <translation>Volver a calcular</translation>
    </message>
    <message>
        <source>算法</source>
        <translation>Algoritmo</translation>
    </message>
    <message>
        <source>添加文件夹时包含其所有下级文件夹中的文件</source>
        <translation>Al añadir una carpeta se incluyen los archivos de todas sus subcarpetas</translation>
    </message>
    <message>
        <source>哈希值</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>可将文件或文件夹拖放到此窗口</source>
        <translation>Puede soltar aquí archivos o carpetas</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Elegir archivos</translation>
    </message>
    <message>
        <source>选择文件夹</source>
        <translation>Elegir carpeta</translation>
    </message>
    <message>
        <source>正在查找文件…</source>
        <translation>Buscando archivos…</translation>
    </message>
    <message>
        <source>正在计算哈希…</source>
        <translation>Calculando hashes…</translation>
    </message>
    <message>
        <source>复制：哈希值</source>
        <translation>Copiar hash</translation>
    </message>
    <message>
        <source>复制：文件名</source>
        <translation>Copiar nombre de archivo</translation>
    </message>
    <message>
        <source>图片对比</source>
        <translation>Comparación de imágenes</translation>
    </message>
    <message>
        <source>文件 A</source>
        <translation>Archivo A</translation>
    </message>
    <message>
        <source>文件 B</source>
        <translation>Archivo B</translation>
    </message>
    <message>
        <source>正在读取…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>日志为空。</source>
        <translation>El registro está vacío.</translation>
    </message>
    <message>
        <source>显示 %1 条，共 %2 条</source>
        <translation>Entradas mostradas: %1 de %2</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Registro de operaciones</translation>
    </message>
    <message>
        <source>筛选日志</source>
        <translation>Filtrar el registro</translation>
    </message>
    <message>
        <source>复制所选</source>
        <translation>Copiar selección</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>将删除目录下的全部图片哈希/直方图缓存：
%1

下次图片扫描会重新计算，可能稍慢。是否继续？</source>
        <translation>Se eliminará toda la caché de hashes e histogramas de imágenes de:
%1

El próximo análisis de imágenes será más lento. ¿Continuar?</translation>
    </message>
    <message>
        <source>清空图片特征缓存</source>
        <translation>Vaciar la caché de características de imagen</translation>
    </message>
    <message>
        <source>图片特征缓存已清空。</source>
        <translation>Se ha vaciado la caché de características de imagen.</translation>
    </message>
    <message>
        <source>部分缓存文件无法删除。</source>
        <translation>No se pudieron eliminar algunos archivos de la caché.</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>⚙  常规</source>
        <translation>⚙  General</translation>
    </message>
    <message>
        <source>🎨  主题</source>
        <translation>🎨  Tema</translation>
    </message>
    <message>
        <source>ℹ  关于程序</source>
        <translation>ℹ  Acerca de</translation>
    </message>
    <message>
        <source>常规设置</source>
        <translation>Configuración general</translation>
    </message>
    <message>
        <source>关闭主窗口时</source>
        <translation>Al cerrar la ventana principal</translation>
    </message>
    <message>
        <source>最小化到系统托盘（推荐）</source>
        <translation>Minimizar a la bandeja del sistema (recomendado)</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Salir del programa</translation>
    </message>
    <message>
        <source>扫描</source>
        <translation>Análisis</translation>
    </message>
    <message>
        <source>扫描完成后播放提示音</source>
        <translation>Emitir un sonido al terminar el análisis</translation>
    </message>
    <message>
        <source>扫描开始前显示确认对话框</source>
        <translation>Pedir confirmación antes del análisis</translation>
    </message>
    <message>
        <source>关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。</source>
        <translation>Si se desactiva, «Iniciar análisis» empieza de inmediato; también puede marcar «No volver a mostrar» en la confirmación.</translation>
    </message>
    <message>
        <source>内容指纹算法</source>
        <translation>Algoritmo de huella del contenido</translation>
    </message>
    <message>
        <source>MD5（默认，沿用现有指纹缓存）</source>
        <translation>MD5 (predeterminado, conserva la caché de huellas existente)</translation>
    </message>
    <message>
        <source>BLAKE3（更快、更强；切换后重建缓存）</source>
        <translation>BLAKE3 (más rápido y robusto; la caché se vuelve a crear tras el cambio)</translation>
    </message>
    <message>
        <source>仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。</source>
        <translation>Solo afecta a los hashes rápido y completo de la búsqueda de contenido idéntico; el muestreo de contenido similar sigue usando MD5.</translation>
    </message>
    <message>
        <source>缓存与数据</source>
        <translation>Caché y datos</translation>
    </message>
    <message>
        <source>图片特征缓存可加快重复图片的扫描。位置：</source>
        <translation>La caché de características de imagen acelera la búsqueda de imágenes duplicadas. Ubicación:</translation>
    </message>
    <message>
        <source>清除已缓存的感知哈希与直方图，下次扫描会重新计算</source>
        <translation>Vacía la caché de hashes perceptuales e histogramas; el próximo análisis los volverá a calcular</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>浅色（Fusion）</source>
        <translation>Claro (Fusion)</translation>
    </message>
    <message>
        <source>深色（Fusion）</source>
        <translation>Oscuro (Fusion)</translation>
    </message>
    <message>
        <source>使用 Qt Fusion 样式，立即生效并自动保存。</source>
        <translation>Usa el estilo Qt Fusion. Se aplica de inmediato y se guarda.</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>Restaurar copia de seguridad</translation>
    </message>
    <message>
        <source>选择要恢复的文件：</source>
        <translation>Archivos para restaurar:</translation>
    </message>
    <message>
        <source>按路径筛选</source>
        <translation>Filtrar por ruta</translation>
    </message>
    <message>
        <source>
无法放回的文件（%1 个）：
</source>
        <translation>
Archivos que no se pueden devolver a su lugar (%1):
</translation>
    </message>
    <message>
        <source>
无法再次移除的文件（%1 个）：
</source>
        <translation>
Archivos que no se pueden volver a eliminar (%1):
</translation>
    </message>
    <message>
        <source>%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。</source>
        <translation>Archivos que no se eliminarán: %1 (%2). Solo se crean enlaces donde la ruta está libre. Para sustituir los archivos por enlaces, haga antes copia de seguridad.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站，无法找回。</source>
        <translation>Archivos que se eliminarán de forma permanente: %1 (%2). No van a la Papelera de reciclaje y no se pueden recuperar.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。</source>
        <translation>Archivos que se eliminarán de forma permanente: %1 (%2). No van a la Papelera de reciclaje, pero se pueden volver a crear a partir de los conservados.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移入回收站，清空回收站后才释放空间。</source>
        <translation>Archivos que irán a la Papelera de reciclaje: %1 (%2). El espacio se libera al vaciarla.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不会永久删除。</source>
        <translation>Archivos que irán a la carpeta de copias de seguridad: %1 (%2). No se elimina nada de forma permanente.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用回收站。</source>
        <translation>Archivos que irán a la carpeta de copias de seguridad: %1 (%2). No se usa la Papelera de reciclaje.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。</source>
        <translation>Archivos que irán a la carpeta de copias de seguridad: %1 (%2). No se usa la carpeta de destino.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。</source>
        <translation>Archivos que irán a la carpeta de copias de seguridad: %1 (%2). Los sustituyen enlaces.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到目标文件夹。</source>
        <translation>Archivos que irán a la carpeta de destino: %1 (%2).</translation>
    </message>
    <message>
        <source>不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容</source>
        <translation>Si no está marcado, antes de reciclar, mover y hacer copia de seguridad solo se comparan muestras; antes de eliminar de forma permanente y de enlazar, siempre todo el contenido</translation>
    </message>
    <message>
        <source>仍占用</source>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>保留记录（天）：</source>
        <translation>Conservar registros (días):</translation>
    </message>
    <message>
        <source>全部处理</source>
        <translation>Procesar todo</translation>
    </message>
    <message>
        <source>内容与要保留的文件不同，已保留: %1</source>
        <translation>El contenido difiere del archivo que se debe conservar; sin procesar: %1</translation>
    </message>
    <message>
        <source>决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除</source>
        <translation>Decide si «Copia de seguridad antes de eliminar» está marcado al abrir el diálogo; los archivos van a la carpeta de copias de seguridad y no se eliminan</translation>
    </message>
    <message>
        <source>删除更早的记录</source>
        <translation>Borrar los anteriores</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>Borrar registro</translation>
    </message>
    <message>
        <source>回收站中保留 %1</source>
        <translation>Ocupado en la Papelera de reciclaje: %1</translation>
    </message>
    <message>
        <source>在历史中显示</source>
        <translation>Ver en el historial</translation>
    </message>
    <message>
        <source>备份中保留：%1</source>
        <translation>Ocupado en copias: %1</translation>
    </message>
    <message>
        <source>备份文件夹中保留 %1</source>
        <translation>Ocupado en la carpeta de copias de seguridad: %1</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>Error: %1</translation>
    </message>
    <message>
        <source>将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？</source>
        <translation>Registros de limpieza que se borrarán: %1. Los archivos no se tocan, pero estas limpiezas ya no se podrán deshacer aquí. ¿Continuar?</translation>
    </message>
    <message>
        <source>将把 %1 个文件放回原处。是否继续？</source>
        <translation>Archivos que se devolverán a su lugar: %1. ¿Continuar?</translation>
    </message>
    <message>
        <source>将再次移除 %1 个文件（%2）。是否继续？</source>
        <translation>Archivos que se volverán a eliminar: %1 (%2). ¿Continuar?</translation>
    </message>
    <message>
        <source>将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？</source>
        <translation>Los archivos de esta limpieza en la carpeta de copias de seguridad (%1) se eliminarán de forma permanente y ya no se podrán restaurar. ¿Continuar?</translation>
    </message>
    <message>
        <source>已中断</source>
        <translation>Interrumpido</translation>
    </message>
    <message>
        <source>已停止，未处理: %1</source>
        <translation>Detenido; sin procesar: %1</translation>
    </message>
    <message>
        <source>已删除 %1 个备份文件。</source>
        <translation>Archivos de copia de seguridad eliminados: %1.</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Completo</translation>
    </message>
    <message>
        <source>已撤销</source>
        <translation>Deshecho</translation>
    </message>
    <message>
        <source>已放回原处</source>
        <translation>Devuelto a su lugar</translation>
    </message>
    <message>
        <source>已移除</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>已释放</source>
        <translation>Liberado</translation>
    </message>
    <message>
        <source>已释放 %1</source>
        <translation>Liberado: %1</translation>
    </message>
    <message>
        <source>所有者或权限与链接目标不同，未处理: %1</source>
        <translation>El propietario o los permisos difieren del destino del enlace; sin procesar: %1</translation>
    </message>
    <message>
        <source>撤销了 %1</source>
        <translation>Deshizo %1</translation>
    </message>
    <message>
        <source>撤销所选文件</source>
        <translation>Deshacer seleccionados</translation>
    </message>
    <message>
        <source>撤销此次清理</source>
        <translation>Deshacer esta limpieza</translation>
    </message>
    <message>
        <source>撤销清理</source>
        <translation>Deshacer limpieza</translation>
    </message>
    <message>
        <source>重新清理</source>
        <translation>Repetir limpieza</translation>
    </message>
    <message>
        <source>文件仍在回收站中，可从那里恢复: %1</source>
        <translation>El archivo sigue en la Papelera de reciclaje y se puede restaurar desde allí: %1</translation>
    </message>
    <message>
        <source>文件已存在，是否替换？
%1</source>
        <translation>El archivo ya existe. ¿Reemplazarlo?
%1</translation>
    </message>
    <message>
        <source>文件数 / 保留的副本</source>
        <translation>Archivos / conservado</translation>
    </message>
    <message>
        <source>文件正被其他程序使用，未处理: %1</source>
        <translation>Otro programa está usando el archivo; sin procesar: %1</translation>
    </message>
    <message>
        <source>方式 / 现在位置</source>
        <translation>Método / lugar actual</translation>
    </message>
    <message>
        <source>无法写入操作日志: %1</source>
        <translation>No se pudo escribir el registro de operaciones: %1</translation>
    </message>
    <message>
        <source>无法写入操作记录，未处理任何文件: %1</source>
        <translation>No se pudo escribir el registro de la limpieza; no se procesó ningún archivo: %1</translation>
    </message>
    <message>
        <source>无法更新备份索引: %1</source>
        <translation>No se pudo actualizar el índice de copias de seguridad: %1</translation>
    </message>
    <message>
        <source>无法确保要保留的文件已写入磁盘，未处理: %1</source>
        <translation>No se pudo asegurar que el archivo que se debe conservar esté en el disco; sin procesar: %1</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Ilegible</translation>
    </message>
    <message>
        <source>无结果记录</source>
        <translation>Sin resultado registrado</translation>
    </message>
    <message>
        <source>时间 / 文件</source>
        <translation>Fecha / archivo</translation>
    </message>
    <message>
        <source>有 %1 条记录无法删除。</source>
        <translation>Registros que no se pudieron borrar: %1.</translation>
    </message>
    <message>
        <source>有 %1 组将不会留下任何副本。</source>
        <translation>Grupos en los que no quedaría ningún archivo: %1.</translation>
    </message>
    <message>
        <source>正在删除备份… (%1/%2)</source>
        <translation>Eliminando copias de seguridad… (%1/%2)</translation>
    </message>
    <message>
        <source>正在检查文件… (%1/%2)</source>
        <translation>Comprobando archivos… (%1/%2)</translation>
    </message>
    <message>
        <source>每次移除前比较全部内容</source>
        <translation>Comparar todo el contenido antes de cada eliminación</translation>
    </message>
    <message>
        <source>每组取消勾选一个</source>
        <translation>Quitar una marca en cada grupo</translation>
    </message>
    <message>
        <source>永久</source>
        <translation>Siempre</translation>
    </message>
    <message>
        <source>没有保留的副本</source>
        <translation>No queda ningún archivo</translation>
    </message>
    <message>
        <source>没有可以放回的文件。</source>
        <translation>No hay archivos que devolver a su lugar.</translation>
    </message>
    <message>
        <source>没有可以再次移除的文件。</source>
        <translation>No hay archivos que volver a eliminar.</translation>
    </message>
    <message>
        <source>没有更早的记录。</source>
        <translation>No hay registros anteriores.</translation>
    </message>
    <message>
        <source>没有清理记录。</source>
        <translation>No hay limpiezas registradas.</translation>
    </message>
    <message>
        <source>清理历史</source>
        <translation>Historial de limpieza</translation>
    </message>
    <message>
        <source>清理历史(&amp;C)…</source>
        <translation>&amp;Historial de limpieza…</translation>
    </message>
    <message>
        <source>目标文件夹包含该文件，未处理: %1</source>
        <translation>La carpeta de destino contiene el archivo; sin procesar: %1</translation>
    </message>
    <message>
        <source>硬链接</source>
        <translation>Enlace físico</translation>
    </message>
    <message>
        <source>确认替换</source>
        <translation>Confirmar el reemplazo</translation>
    </message>
    <message>
        <source>移入回收站</source>
        <translation>Enviado a la Papelera</translation>
    </message>
    <message>
        <source>删除空文件夹</source>
        <translation>Eliminar carpetas vacías</translation>
    </message>
    <message>
        <source>移动到文件夹</source>
        <translation>Movido a carpeta</translation>
    </message>
    <message>
        <source>符号链接</source>
        <translation>Enlace simbólico</translation>
    </message>
    <message>
        <source>要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1</source>
        <translation>El archivo que se debe conservar ya no está, o es este mismo archivo por otra ruta; sin procesar: %1</translation>
    </message>
    <message>
        <source>部分已撤销</source>
        <translation>Deshecho en parte</translation>
    </message>
    <message>
        <source>部分组不是按内容匹配的，处理前不会比较这些文件的内容。</source>
        <translation>Algunos grupos no coinciden por contenido; sus archivos no se comparan antes de eliminarlos.</translation>
    </message>
    <message>
        <source>释放 %1</source>
        <translation>Liberar %1</translation>
    </message>
    <message>
        <source>释放备份</source>
        <translation>Liberar copias</translation>
    </message>
    <message>
        <source>恢复所选</source>
        <translation>Restaurar seleccionados</translation>
    </message>
    <message>
        <source>正在复制文件… (%1/%2)</source>
        <translation>Copiando archivos… (%1/%2)</translation>
    </message>
    <message>
        <source>正在导出… (%1/%2)</source>
        <translation>Exportando… (%1/%2)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>导出失败。</source>
        <translation>No se pudo exportar.</translation>
    </message>
    <message>
        <source>导出警告</source>
        <translation>Advertencia de exportación</translation>
    </message>
    <message>
        <source>部分文件未能导出：
%1</source>
        <translation>Algunos archivos no se exportaron:
%1</translation>
    </message>
    <message>
        <source>已复制文件到：%1
%2</source>
        <translation>Archivos copiados en: %1
%2</translation>
    </message>
    <message>
        <source>已导出：%1</source>
        <translation>Exportado: %1</translation>
    </message>
    <message>
        <source>没有可导出的结果。</source>
        <translation>No hay resultados que exportar.</translation>
    </message>
    <message>
        <source>请指定输出路径。</source>
        <translation>Indique la ruta de salida.</translation>
    </message>
    <message>
        <source>…… 另有 %1 行，见详细信息</source>
        <translation>… otras líneas: %1, vea los detalles</translation>
    </message>
    <message>
        <source>…… 另有 %1 行未显示</source>
        <translation>… otras líneas no mostradas: %1</translation>
    </message>
    <message>
        <source>链接目标属于另一组，未处理: %1</source>
        <translation>El destino del enlace pertenece a otro grupo; no procesado: %1</translation>
    </message>
    <message>
        <source>没有可链接的保留文件，未处理: %1</source>
        <translation>No hay archivo conservado al que enlazar; no procesado: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件</source>
        <translation>Archivos: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件 @ %2.%3 秒</source>
        <translation>Archivos: %1 en %2,%3 s</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2 字节
修改: %3</source>
        <translation>Ruta: %1
Tamaño: %2 bytes
Modificado: %3</translation>
    </message>
    <message>
        <source>
GPS: %1, %2</source>
        <translation>
GPS: %1, %2</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>程序启动</source>
        <translation>Programa iniciado</translation>
    </message>
    <message>
        <source>扫描开始</source>
        <translation>Análisis iniciado</translation>
    </message>
    <message>
        <source>备份已恢复</source>
        <translation>Copia de seguridad restaurada</translation>
    </message>
    <message>
        <source>要移除的空文件夹</source>
        <translation>Carpetas vacías para eliminar</translation>
    </message>
    <message>
        <source>空文件夹已移除</source>
        <translation>Carpetas vacías eliminadas</translation>
    </message>
    <message>
        <source>程序退出</source>
        <translation>Programa cerrado</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Análisis completado</translation>
    </message>
    <message>
        <source>按规则勾选</source>
        <translation>Marcados según la regla</translation>
    </message>
    <message>
        <source>移动到备份</source>
        <translation>Movidos a la copia de seguridad</translation>
    </message>
    <message>
        <source>备份并移除</source>
        <translation>Eliminados tras copia de seguridad</translation>
    </message>
    <message>
        <source>移除文件</source>
        <translation>Archivos eliminados</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportación</translation>
    </message>
    <message>
        <source>导出副本</source>
        <translation>Copias exportadas</translation>
    </message>
    <message>
        <source>恢复备份…</source>
        <translation>Restaurar copia de seguridad…</translation>
    </message>
    <message>
        <source>结果已清空。切换Tab调整规则后可重新开始扫描。</source>
        <translation>Resultados vaciados. Ajuste las reglas y repita el análisis.</translation>
    </message>
    <message>
        <source>请选中同一组内的两个图片文件进行对比。</source>
        <translation>Seleccione dos imágenes del mismo grupo para compararlas.</translation>
    </message>
    <message>
        <source>没有匹配的记录。</source>
        <translation>No hay entradas que coincidan.</translation>
    </message>
    <message>
        <source>没有匹配的文件。</source>
        <translation>No hay archivos que coincidan.</translation>
    </message>
    <message>
        <source>还没有扫描位置。
点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。</source>
        <translation>Aún no hay ubicaciones.
Haga clic en «+ Carpeta», elija a la izquierda, o arrastre o pegue carpetas aquí.</translation>
    </message>
    <message>
        <source>扫描后在这里显示结果。</source>
        <translation>Los resultados aparecerán aquí después de un análisis.</translation>
    </message>
    <message>
        <source>没有找到重复文件。</source>
        <translation>No se encontraron archivos duplicados.</translation>
    </message>
    <message>
        <source>没有找到重复文件夹。</source>
        <translation>No se encontraron carpetas duplicadas.</translation>
    </message>
    <message>
        <source>没有列出其余文件。
要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。</source>
        <translation>No se muestran archivos restantes.
Para verlos, active «Mostrar archivos restantes» en una ubicación y analice de nuevo.</translation>
    </message>
    <message>
        <source>筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。</source>
        <translation>El filtro solo cambia lo que muestran las listas; las marcas y las acciones por lotes siguen afectando a todos los resultados.</translation>
    </message>
</context>
</TS>
