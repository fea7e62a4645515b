<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>Mirrix</name>
    <message>
        <source>枚举文件</source>
        <translation>Enumerating files</translation>
    </message>
    <message>
        <source>读取元数据</source>
        <translation>Reading metadata</translation>
    </message>
    <message>
        <source>快速哈希</source>
        <translation>Quick hash</translation>
    </message>
    <message>
        <source>完整哈希</source>
        <translation>Full hash</translation>
    </message>
    <message>
        <source>相似内容比对</source>
        <translation>Similar content compare</translation>
    </message>
    <message>
        <source>前缀采样哈希</source>
        <translation>Prefix sample hash</translation>
    </message>
    <message>
        <source>采样指纹哈希</source>
        <translation>Sample fingerprint hash</translation>
    </message>
    <message>
        <source>图片感知哈希</source>
        <translation>Image perceptual hash</translation>
    </message>
    <message>
        <source>[%1] %2  已枚举 %3  已处理 %4/%5</source>
        <translation>[%1] %2  Enumerated %3  Processed %4/%5</translation>
    </message>
    <message>
        <source>文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒</source>
        <translation>Files %1 · Dup groups %2 · Folder groups %3 · Remaining %4 · Reclaim ~%5 · %6 s</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>查看操作日志</source>
        <translation>View operation log</translation>
    </message>
    <message>
        <source>打开数据文件夹</source>
        <translation>Open data folder</translation>
    </message>
    <message>
        <source>完整退出</source>
        <translation>Exit completely</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>&amp;Tools</translation>
    </message>
    <message>
        <source>哈希工具</source>
        <translation>Hash tool</translation>
    </message>
    <message>
        <source>选项…</source>
        <translation>Options…</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>关于 Mirrix</source>
        <translation>About Mirrix</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 零广告 · 图片哈希: %2</source>
        <translation>%1 · Local · No ads · Image hash: %2</translation>
    </message>
    <message>
        <source>① 选择位置 → ② 匹配规则 → ③ 预览并清理</source>
        <translation>① Location → ② Rules → ③ Preview &amp; clean</translation>
    </message>
    <message>
        <source>选择一个路径开始查重</source>
        <translation>Choose a folder to start</translation>
    </message>
    <message>
        <source>选好后点击左侧「开始扫描」</source>
        <translation>Then click Start scan on the left</translation>
    </message>
    <message>
        <source>配置匹配规则</source>
        <translation>Configure match rules</translation>
    </message>
    <message>
        <source>预览重复项并清理</source>
        <translation>Preview duplicates and clean up</translation>
    </message>
    <message>
        <source>勾选要移除的副本，建议先备份再删除</source>
        <translation>Select copies to remove; backup first if unsure</translation>
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
        <translation>Select duplicates and clean up</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>请先勾选启用至少一个扫描位置。</source>
        <translation>Enable at least one scan location.</translation>
    </message>
    <message>
        <source>扫描进行中：已锁定规则与位置页，请勿修改扫描参数。</source>
        <translation>Scan in progress: rules and locations locked.</translation>
    </message>
    <message>
        <source>确认开始扫描</source>
        <translation>Confirm scan</translation>
    </message>
    <message>
        <source>开始扫描</source>
        <translation>Start scan</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>不再显示此确认</source>
        <translation>Don't show again</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 图片哈希: %2</source>
        <translation>%1 · Local · Image hash: %2</translation>
    </message>
    <message>
        <source>正在取消...</source>
        <translation>Cancelling...</translation>
    </message>
    <message>
        <source>扫描完成 · 图片哈希后端: %1</source>
        <translation>Scan complete · Image hash backend: %1</translation>
    </message>
    <message>
        <source>位于回收站中</source>
        <translation>In the recycle bin</translation>
    </message>
    <message>
        <source>位于备份文件夹中</source>
        <translation>In a backup folder</translation>
    </message>
    <message>
        <source>位于快照中</source>
        <translation>In a snapshot</translation>
    </message>
    <message>
        <source>未能读取 %1 项：%2</source>
        <translation>Could not be read (%1): %2</translation>
    </message>
    <message>
        <source>扫描失败</source>
        <translation>Scan failed</translation>
    </message>
    <message>
        <source>便携模式</source>
        <translation>Portable mode</translation>
    </message>
    <message>
        <source>标准模式</source>
        <translation>Standard mode</translation>
    </message>
    <message>
        <source>程序仍在托盘运行。可通过托盘菜单一键完整退出。</source>
        <translation>Still running in tray. Use tray menu to exit completely.</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Show main window</translation>
    </message>
    <message>
        <source>一键完整退出</source>
        <translation>Exit completely</translation>
    </message>
    <message>
        <source>Mirrix · 重复文件查找与清理</source>
        <translation>Mirrix · Find and clean up duplicate files</translation>
    </message>
    <message>
        <source>重复文件清理</source>
        <translation>Duplicate cleanup</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Steps</translation>
    </message>
    <message>
        <source>选择位置</source>
        <translation>Select location</translation>
    </message>
    <message>
        <source>匹配规则</source>
        <translation>Match rules</translation>
    </message>
    <message>
        <source>预览清理</source>
        <translation>Preview &amp; clean</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>扫描过程中发生未知错误</source>
        <translation>An unknown error occurred during the scan.</translation>
    </message>
    <message>
        <source>扫描已取消</source>
        <translation>Scan cancelled</translation>
    </message>
    <message>
        <source>可移动磁盘</source>
        <translation>Removable disk</translation>
    </message>
    <message>
        <source>本地磁盘</source>
        <translation>Local disk</translation>
    </message>
    <message>
        <source>网络驱动器</source>
        <translation>Network drive</translation>
    </message>
    <message>
        <source>光驱</source>
        <translation>Optical drive</translation>
    </message>
    <message>
        <source>内存盘</source>
        <translation>RAM disk</translation>
    </message>
    <message>
        <source>恢复失败: %1</source>
        <translation>Restore failed: %1</translation>
    </message>
    <message>
        <source>备份文件已损坏，未恢复: %1</source>
        <translation>The backup is damaged; not restored: %1</translation>
    </message>
    <message>
        <source>已恢复，但备份无法删除: %1</source>
        <translation>Restored, but the backup could not be removed: %1</translation>
    </message>
    <message>
        <source>备份索引无法写入: %1</source>
        <translation>The backup index could not be written: %1</translation>
    </message>
    <message>
        <source>原路径已存在文件，已取消恢复: %1</source>
        <translation>A file already exists at the original path; restore cancelled: %1</translation>
    </message>
    <message>
        <source>无法移动到备份目录: %1</source>
        <translation>Could not move to backup folder: %1</translation>
    </message>
    <message>
        <source>文件在扫描后已更改，已保留: %1</source>
        <translation>Changed since the scan, kept: %1</translation>
    </message>
    <message>
        <source>要保留的文件已更改，未处理: %1</source>
        <translation>The file to keep has changed; this copy was left alone: %1</translation>
    </message>
    <message>
        <source>与要保留的文件可能是同一个文件，未处理: %1</source>
        <translation>May be the same file as the one to keep; left alone: %1</translation>
    </message>
    <message>
        <source>无法创建目标目录: %1</source>
        <translation>Could not create destination folder: %1</translation>
    </message>
    <message>
        <source>目标已存在: %1</source>
        <translation>Destination already exists: %1</translation>
    </message>
    <message>
        <source>链接路径已存在: %1</source>
        <translation>Link path already exists: %1</translation>
    </message>
    <message>
        <source>没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1</source>
        <translation>No permission to create symbolic links (turn on Developer Mode or run as administrator): %1</translation>
    </message>
    <message>
        <source>无法删除: %1</source>
        <translation>Could not delete: %1</translation>
    </message>
    <message>
        <source>文件夹已不为空，或不允许删除: %1</source>
        <translation>Folder is no longer empty, or must not be deleted: %1</translation>
    </message>
    <message>
        <source>无法移动: %1</source>
        <translation>Could not move: %1</translation>
    </message>
    <message>
        <source>无法复制: %1</source>
        <translation>Could not copy: %1</translation>
    </message>
    <message>
        <source>无法创建硬链接: %1</source>
        <translation>Could not create hard link: %1</translation>
    </message>
    <message>
        <source>无法创建符号链接: %1</source>
        <translation>Could not create symbolic link: %1</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>File not found: %1</translation>
    </message>
    <message>
        <source>链接目标不是可用的文件: %1</source>
        <translation>The link target is not a usable file: %1</translation>
    </message>
    <message>
        <source>原文件未能放回，可从备份中恢复: %1</source>
        <translation>The file could not be put back; it can be restored from the backup: %1</translation>
    </message>
    <message>
        <source>无法放入回收站，已保留: %1</source>
        <translation>Cannot be moved to the Recycle Bin; file kept: %1</translation>
    </message>
    <message>
        <source>无法写入清理记录: %1 (%2)</source>
        <translation>Could not write the cleaning journal: %1 (%2)</translation>
    </message>
    <message>
        <source>清理记录正被另一程序使用: %1</source>
        <translation>Another program is using the cleaning journal: %1</translation>
    </message>
    <message>
        <source>清理记录已损坏，只读到完好部分: %1</source>
        <translation>The cleaning journal is damaged; only its intact part was read: %1</translation>
    </message>
    <message>
        <source>无法读取清理记录（已损坏或来自另一台计算机）: %1</source>
        <translation>Could not read the cleaning journal (damaged, or from another computer): %1</translation>
    </message>
    <message>
        <source>无法重新生成，当时未与要保留的文件比较内容: %1</source>
        <translation>Cannot be made again; its content was not compared with the file to keep: %1</translation>
    </message>
    <message>
        <source>无法重新生成，要保留的文件不存在或已更改: %1 (%2)</source>
        <translation>Cannot be made again; the file to keep is gone or has changed: %1 (%2)</translation>
    </message>
    <message>
        <source>已不在回收站中，无法恢复: %1</source>
        <translation>No longer in the Recycle Bin; cannot be restored: %1</translation>
    </message>
    <message>
        <source>文件已不在此处或已更改，未恢复: %1 (%2)</source>
        <translation>No longer there or changed; not restored: %1 (%2)</translation>
    </message>
    <message>
        <source>文件夹或磁盘不存在，未恢复: %1 (%2)</source>
        <translation>The folder or drive is missing; not restored: %1 (%2)</translation>
    </message>
    <message>
        <source>已恢复，但原链接无法删除: %1</source>
        <translation>Restored, but the link could not be removed: %1</translation>
    </message>
    <message>
        <source>已恢复，但无法还原修改时间或权限: %1</source>
        <translation>Restored, but its time or permissions could not be set: %1</translation>
    </message>
    <message>
        <source>批量移入回收站失败 (code %1, %2 个文件)</source>
        <translation>Failed to send files to Recycle Bin (code %1, %2 files)</translation>
    </message>
    <message>
        <source>未移入回收站，仍在原处: %1</source>
        <translation>Not moved to the Recycle Bin; still in place: %1</translation>
    </message>
    <message>
        <source>保留最新文件</source>
        <translation>Keep newest file</translation>
    </message>
    <message>
        <source>保留最旧文件</source>
        <translation>Keep oldest file</translation>
    </message>
    <message>
        <source>保留最上层目录</source>
        <translation>Keep shallowest path</translation>
    </message>
    <message>
        <source>保留最深路径</source>
        <translation>Keep longest path</translation>
    </message>
    <message>
        <source>选择备份目录</source>
        <translation>Choose the backup folder</translation>
    </message>
    <message>
        <source>高级选项（保留规则、备份等）</source>
        <translation>Advanced (keep rules, backup, …)</translation>
    </message>
    <message>
        <source>保留规则</source>
        <translation>Keep rule</translation>
    </message>
    <message>
        <source>跳过隐藏文件</source>
        <translation>Skip hidden files</translation>
    </message>
    <message>
        <source>排除系统目录</source>
        <translation>Exclude system folders</translation>
    </message>
    <message>
        <source>删除前自动备份</source>
        <translation>Auto backup before delete</translation>
    </message>
    <message>
        <source>备份目录</source>
        <translation>Backup folder</translation>
    </message>
    <message>
        <source>选择要扫描的磁盘 / 分区</source>
        <translation>Drives / partitions to scan</translation>
    </message>
    <message>
        <source>勾选分区后加入扫描列表（不会立即开始扫描）。
系统目录仍会默认排除。建议慎选系统盘整盘扫描。</source>
        <translation>Check the boxes of the partitions to add to the scan list (the scan won't start yet).
System folders stay excluded. Think twice before scanning the whole system drive.</translation>
    </message>
    <message>
        <source>加入扫描列表</source>
        <translation>Add to scan list</translation>
    </message>
    <message>
        <source>未勾选任何磁盘。</source>
        <translation>No drives selected.</translation>
    </message>
    <message>
        <source>系统盘确认</source>
        <translation>System drive confirmation</translation>
    </message>
    <message>
        <source>您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。
是否加入扫描列表？</source>
        <translation>You selected a system drive. Full-disk scans take longer; system folders stay excluded.
Add to scan list?</translation>
    </message>
    <message>
        <source>确认添加</source>
        <translation>Confirm add</translation>
    </message>
    <message>
        <source>将 %1 个分区加入扫描列表（不会立即开始扫描）：
%2</source>
        <translation>Add %1 partition(s) to scan list (scan won't start yet):
%2</translation>
    </message>
    <message>
        <source>未检测到可扫描的磁盘或分区。</source>
        <translation>No scannable drives or partitions found.</translation>
    </message>
    <message>
        <source>选择要排除的文件夹</source>
        <translation>Choose a folder to exclude</translation>
    </message>
    <message>
        <source>排除目录</source>
        <translation>Excluded folders</translation>
    </message>
    <message>
        <source>+ 排除</source>
        <translation>+ Exclude</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>选择一个扫描时不进入的文件夹</source>
        <translation>Choose a folder to leave out of scans</translation>
    </message>
    <message>
        <source>从排除目录中移除选中的文件夹</source>
        <translation>Stop excluding the selected folders</translation>
    </message>
    <message>
        <source>可操作文件夹</source>
        <translation>Browse folders</translation>
    </message>
    <message>
        <source>浏览文件夹，用右侧的 → 加入扫描位置；
也可以从资源管理器把文件夹拖入扫描列表。</source>
        <translation>Browse folders, then use → on the right to add to scan locations;
or drag folders from Explorer into the scan list.</translation>
    </message>
    <message>
        <source>将选中的文件夹加入扫描位置</source>
        <translation>Add selected folders to scan locations</translation>
    </message>
    <message>
        <source>选择要扫描的文件夹</source>
        <translation>Choose a folder to scan</translation>
    </message>
    <message>
        <source>每行一个扫描位置，状态列=启用/停用，已保护=不扫描。</source>
        <translation>One scan location per row; Status = on/off; Protected = skip.</translation>
    </message>
    <message>
        <source>+文件夹</source>
        <translation>+ Folder</translation>
    </message>
    <message>
        <source>+磁盘</source>
        <translation>+ Drive</translation>
    </message>
    <message>
        <source>移除所选</source>
        <translation>Remove selected</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Clear list</translation>
    </message>
    <message>
        <source>选择一个文件夹加入扫描位置</source>
        <translation>Choose a folder to add to the scan locations</translation>
    </message>
    <message>
        <source>已包含</source>
        <translation>Included</translation>
    </message>
    <message>
        <source>🔒 已保护</source>
        <translation>🔒 Protected</translation>
    </message>
    <message>
        <source>锁 否</source>
        <translation>Lock No</translation>
    </message>
    <message>
        <source>📂 是</source>
        <translation>📂 Yes</translation>
    </message>
    <message>
        <source>📂 否</source>
        <translation>📂 No</translation>
    </message>
    <message>
        <source>文件夹名称</source>
        <translation>Folder name</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>已保护</source>
        <translation>Protected</translation>
    </message>
    <message>
        <source>扫描子目录</source>
        <translation>Scan subfolders</translation>
    </message>
    <message>
        <source>查找重复</source>
        <translation>Find duplicates</translation>
    </message>
    <message>
        <source>显示其余文件</source>
        <translation>Show remaining files</translation>
    </message>
    <message>
        <source>🔍 查找重复</source>
        <translation>🔍 Duplicates</translation>
    </message>
    <message>
        <source>📄 相同文件名</source>
        <translation>📄 Same file name</translation>
    </message>
    <message>
        <source>🗑 空文件</source>
        <translation>🗑 Empty files</translation>
    </message>
    <message>
        <source>%1
现在找不到这个文件夹。</source>
        <translation>%1
This folder cannot be found at the moment.</translation>
    </message>
    <message>
        <source>扫描位置</source>
        <translation>Scan locations</translation>
    </message>
    <message>
        <source>桌面</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>下载</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>音乐</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>视频</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>快捷位置</source>
        <translation>Quick locations</translation>
    </message>
    <message>
        <source>本地磁盘 (%1)</source>
        <translation>Local disk (%1)</translation>
    </message>
    <message>
        <source>扫描进行中，批量操作已暂停。</source>
        <translation>Scan in progress; batch actions paused.</translation>
    </message>
    <message>
        <source>「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。</source>
        <translation>“Duplicate folders” is read-only; delete/export on the Duplicates tab.</translation>
    </message>
    <message>
        <source>「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。</source>
        <translation>“Remaining files” is read-only; switch to the Duplicates tab to select items.</translation>
    </message>
    <message>
        <source>扫描完成后，在左侧勾选重复项再执行批量操作。</source>
        <translation>After scan, check duplicates on the left, then batch actions.</translation>
    </message>
    <message>
        <source>已勾选 %1 个文件</source>
        <translation>%1 files checked</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>文件夹组 #%1</source>
        <translation>Folder group #%1</translation>
    </message>
    <message>
        <source>文件夹路径</source>
        <translation>Folder path</translation>
    </message>
    <message>
        <source>文件数</source>
        <translation>File count</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>容量未知</source>
        <translation>Unknown size</translation>
    </message>
    <message>
        <source>%1 / 可用 %2</source>
        <translation>%1 / %2 free</translation>
    </message>
    <message>
        <source>无标签</source>
        <translation>No label</translation>
    </message>
    <message>
        <source>  ·系统盘</source>
        <translation>  ·System drive</translation>
    </message>
    <message>
        <source>文件已不存在或无法访问</source>
        <translation>The file no longer exists or cannot be reached</translation>
    </message>
    <message>
        <source>图片过大，无法预览</source>
        <translation>The image is too large to preview</translation>
    </message>
    <message>
        <source>无法读取此图片</source>
        <translation>This image cannot be read</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>修改时间</source>
        <translation>Modified</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>文件 / 分组</source>
        <translation>File / group</translation>
    </message>
    <message>
        <source>分组 #%1  (%2 个文件, 可回收 %3)</source>
        <translation>Group #%1  (%2 files, reclaim %3)</translation>
    </message>
    <message>
        <source>本组所有文件均已勾选，处理后将不保留任何副本。</source>
        <translation>All files in this group are checked; no copy will be kept.</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2
修改: %3
后缀: %4</source>
        <translation>Path: %1
Size: %2
Modified: %3
Ext: %4</translation>
    </message>
    <message>
        <source>
尺寸: %1 × %2</source>
        <translation>
Dimensions: %1 × %2</translation>
    </message>
    <message>
        <source>
相机: %1 %2</source>
        <translation>
Camera: %1 %2</translation>
    </message>
    <message>
        <source>
拍摄: %1</source>
        <translation>
Shot: %1</translation>
    </message>
    <message>
        <source>
艺术家: %1</source>
        <translation>
Artist: %1</translation>
    </message>
    <message>
        <source>
标题: %1</source>
        <translation>
Title: %1</translation>
    </message>
    <message>
        <source>常规模式</source>
        <translation>General mode</translation>
    </message>
    <message>
        <source>图片模式</source>
        <translation>Image mode</translation>
    </message>
    <message>
        <source>音频模式</source>
        <translation>Audio mode</translation>
    </message>
    <message>
        <source>视频模式</source>
        <translation>Video mode</translation>
    </message>
    <message>
        <source>完全相同匹配</source>
        <translation>Exact match</translation>
    </message>
    <message>
        <source>非常近似匹配</source>
        <translation>Very close match</translation>
    </message>
    <message>
        <source>近似匹配</source>
        <translation>Approximate match</translation>
    </message>
    <message>
        <source>相似匹配</source>
        <translation>Similar match</translation>
    </message>
    <message>
        <source>宽松相似</source>
        <translation>Loosely similar</translation>
    </message>
    <message>
        <source>采样指纹（多点哈希）</source>
        <translation>Sample fingerprint (multi-point hash)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 2 分钟采样）</source>
        <translation>Approximate (≈2 min opening sample)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 30 秒采样）</source>
        <translation>Approximate (≈30 s opening sample)</translation>
    </message>
    <message>
        <source>全文件精确哈希</source>
        <translation>Full-file exact hash</translation>
    </message>
    <message>
        <source>仅按标签匹配</source>
        <translation>Match by tags only</translation>
    </message>
    <message>
        <source>开头采样哈希</source>
        <translation>Opening sample hash</translation>
    </message>
    <message>
        <source>全文件多点哈希（较慢）</source>
        <translation>Full-file multi-point hash (slower)</translation>
    </message>
    <message>
        <source>仅显示</source>
        <translation>Show only</translation>
    </message>
    <message>
        <source>必须匹配</source>
        <translation>Must match</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>不限</source>
        <translation>No limit</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>• 图像相似度：%1</source>
        <translation>• Image similarity: %1</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>翻转</source>
        <translation>Flip</translation>
    </message>
    <message>
        <source>• 变体：%1</source>
        <translation>• Variants: %1</translation>
    </message>
    <message>
        <source>• 匹配：相同内容（字节级）</source>
        <translation>• Match: same content (byte-level)</translation>
    </message>
    <message>
        <source>• 匹配：相似内容（采样一致 ≥ %1%）</source>
        <translation>• Match: similar content (≥ %1% sample match)</translation>
    </message>
    <message>
        <source>• 匹配：忽略内容（名称/大小/日期规则）</source>
        <translation>• Match: ignore content (name/size/date rules)</translation>
    </message>
    <message>
        <source>• 音频比对：%1</source>
        <translation>• Audio compare: %1</translation>
    </message>
    <message>
        <source>• 视频比对：%1</source>
        <translation>• Video compare: %1</translation>
    </message>
    <message>
        <source>• 扫描位置：%1</source>
        <translation>• Scan locations: %1</translation>
    </message>
    <message>
        <source>    … 另有 %1 个</source>
        <translation>    … %1 more</translation>
    </message>
    <message>
        <source>• 排除目录：%1</source>
        <translation>• Excluded folders: %1</translation>
    </message>
    <message>
        <source>• 大小限制：%1 ~ %2</source>
        <translation>• Size limits: %1 ~ %2</translation>
    </message>
    <message>
        <source>• 包含扩展名：%1</source>
        <translation>• Include extensions: %1</translation>
    </message>
    <message>
        <source>• 排除扩展名：%1</source>
        <translation>• Exclude extensions: %1</translation>
    </message>
    <message>
        <source>隐藏文件</source>
        <translation>Hidden files</translation>
    </message>
    <message>
        <source>系统目录</source>
        <translation>System folders</translation>
    </message>
    <message>
        <source>• 跳过：%1</source>
        <translation>• Skip: %1</translation>
    </message>
    <message>
        <source>请确认以下扫描设置：</source>
        <translation>Confirm scan settings:</translation>
    </message>
    <message>
        <source>• 模式：%1</source>
        <translation>• Mode: %1</translation>
    </message>
    <message>
        <source>扫描在本地执行，文件不会上传到网络。</source>
        <translation>Scanning is local; files are not uploaded.</translation>
    </message>
    <message>
        <source>拍摄时间</source>
        <translation>Date/Time taken</translation>
    </message>
    <message>
        <source>相机品牌</source>
        <translation>Make</translation>
    </message>
    <message>
        <source>相机型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>图片描述</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>用户注释</source>
        <translation>UserComment</translation>
    </message>
    <message>
        <source>镜头型号</source>
        <translation>LensModel</translation>
    </message>
    <message>
        <source>感光度</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>光圈值</source>
        <translation>FNumber</translation>
    </message>
    <message>
        <source>曝光时间</source>
        <translation>ExposureTime</translation>
    </message>
    <message>
        <source>焦距</source>
        <translation>FocalLength</translation>
    </message>
    <message>
        <source>处理软件</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>艺术家</source>
        <translation>Artist</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>专辑</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>音轨号</source>
        <translation>Track</translation>
    </message>
    <message>
        <source>年代</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>流派</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>歌词作者</source>
        <translation>Lyricist</translation>
    </message>
    <message>
        <source>比特率</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>Sample rate</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>导演</source>
        <translation>Director</translation>
    </message>
    <message>
        <source>批量操作</source>
        <translation>Batch actions</translation>
    </message>
    <message>
        <source>按规则自动勾选</source>
        <translation>Auto-select by rule</translation>
    </message>
    <message>
        <source>全选重复项</source>
        <translation>Select all duplicates</translation>
    </message>
    <message>
        <source>反选</source>
        <translation>Invert selection</translation>
    </message>
    <message>
        <source>清空结果</source>
        <translation>Clear results</translation>
    </message>
    <message>
        <source>移动到备份文件夹</source>
        <translation>Move to backup folder</translation>
    </message>
    <message>
        <source>删除所选</source>
        <translation>Delete selected</translation>
    </message>
    <message>
        <source>导出…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>文件预览</source>
        <translation>File preview</translation>
    </message>
    <message>
        <source>选择文件以预览</source>
        <translation>Select a file to preview</translation>
    </message>
    <message>
        <source>文件夹: %1</source>
        <translation>Folder: %1</translation>
    </message>
    <message>
        <source>无图像预览
%1</source>
        <translation>No image preview
%1</translation>
    </message>
    <message>
        <source>在资源管理器中打开</source>
        <translation>Open in Explorer</translation>
    </message>
    <message>
        <source>打开文件</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>Open containing folder</translation>
    </message>
    <message>
        <source>复制路径</source>
        <translation>Copy path</translation>
    </message>
    <message>
        <source>复制文件夹路径</source>
        <translation>Copy folder path</translation>
    </message>
    <message>
        <source>尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。</source>
        <translation>No scan yet. Choose a mode, add folders, then click Scan now.</translation>
    </message>
    <message>
        <source>视图：</source>
        <translation>View:</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>List</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>Thumbnails</translation>
    </message>
    <message>
        <source>重复文件</source>
        <translation>Duplicate files</translation>
    </message>
    <message>
        <source>重复文件夹</source>
        <translation>Duplicate folders</translation>
    </message>
    <message>
        <source>其余 / 唯一文件</source>
        <translation>Remaining / unique files</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>全部展开</source>
        <translation>Expand all</translation>
    </message>
    <message>
        <source>全部折叠</source>
        <translation>Collapse all</translation>
    </message>
    <message>
        <source>对比图片 (选 2 个)</source>
        <translation>Compare images (select 2)</translation>
    </message>
    <message>
        <source>全选本组重复项</source>
        <translation>Check all duplicates in group</translation>
    </message>
    <message>
        <source>音频文件匹配配置</source>
        <translation>Audio match settings</translation>
    </message>
    <message>
        <source>音频指纹基于采样，并非 Chromaprint 级别。</source>
        <translation>Audio fingerprint is sample-based, not Chromaprint-grade.</translation>
    </message>
    <message>
        <source> 毫秒</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>音频文件标签</source>
        <translation>Audio tags</translation>
    </message>
    <message>
        <source>文件类型</source>
        <translation>File types</translation>
    </message>
    <message>
        <source>扩展名</source>
        <translation>Extensions</translation>
    </message>
    <message>
        <source>使用当前模式的扩展名</source>
        <translation>Use the current mode's extensions</translation>
    </message>
    <message>
        <source>勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。</source>
        <translation>When checked, scan uses extensions for the current mode; when unchecked, only the Included list is used.</translation>
    </message>
    <message>
        <source>已排除</source>
        <translation>Excluded</translation>
    </message>
    <message>
        <source>例如：jpg, png</source>
        <translation>For example: jpg, png</translation>
    </message>
    <message>
        <source>用逗号、分号或空格分隔；* 或 *.* 表示全部</source>
        <translation>Separated by commas, semicolons or spaces; * or *.* means all</translation>
    </message>
    <message>
        <source>图片模式包含更多 RAW 格式</source>
        <translation>More RAW formats in image mode</translation>
    </message>
    <message>
        <source>图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；
raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。</source>
        <translation>In image mode, also scan camera RAW files such as arw, dng, rw2, orf and srw;
raw, cr2 and nef are always scanned. Applies only while the Included list is empty.</translation>
    </message>
    <message>
        <source>文件大小</source>
        <translation>File size</translation>
    </message>
    <message>
        <source>不限大小</source>
        <translation>Any size</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>任意日期</source>
        <translation>Any date</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>Modified</translation>
    </message>
    <message>
        <source>从这一天开始</source>
        <translation>From this day on</translation>
    </message>
    <message>
        <source>到这一天为止（含当天）</source>
        <translation>Up to and including this day</translation>
    </message>
    <message>
        <source>更多判断重复的选项</source>
        <translation>More duplicate criteria</translation>
    </message>
    <message>
        <source>内容匹配</source>
        <translation>Content match</translation>
    </message>
    <message>
        <source>相同内容</source>
        <translation>Same content</translation>
    </message>
    <message>
        <source>相似内容</source>
        <translation>Similar content</translation>
    </message>
    <message>
        <source>忽略内容</source>
        <translation>Ignore content</translation>
    </message>
    <message>
        <source>以下模式互斥：
• 相同内容 = 逐字节一致（默认）
• 相似内容 = 字节近似匹配
• 忽略内容 = 仅按元数据规则</source>
        <translation>Mutually exclusive modes:
• Same content = exact bytes (default)
• Similar content = approximate byte match
• Ignore content = metadata rules only</translation>
    </message>
    <message>
        <source>采样一致的最低比例</source>
        <translation>Minimum sample agreement</translation>
    </message>
    <message>
        <source>不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。</source>
        <translation>Does not read file content; groups using duplicate criteria below.</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>相同文件名</source>
        <translation>Same file name</translation>
    </message>
    <message>
        <source>相同文件拓展名</source>
        <translation>Same extension</translation>
    </message>
    <message>
        <source>相似文件名</source>
        <translation>Similar file names</translation>
    </message>
    <message>
        <source>忽略文件名中「副本」字样</source>
        <translation>Ignore "copy" in file names</translation>
    </message>
    <message>
        <source>包括其他语言</source>
        <translation>also in other languages</translation>
    </message>
    <message>
        <source>也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”</source>
        <translation>Also ignores what systems and file managers in other languages add to the names of copies, such as “- Kopie” or “(otra copia)”</translation>
    </message>
    <message>
        <source>相同文件大小</source>
        <translation>Same file size</translation>
    </message>
    <message>
        <source>容差</source>
        <translation>Tolerance</translation>
    </message>
    <message>
        <source>容差单位</source>
        <translation>Tolerance unit</translation>
    </message>
    <message>
        <source>相同创建日期</source>
        <translation>Same created date</translation>
    </message>
    <message>
        <source>仅匹配日期</source>
        <translation>Date only</translation>
    </message>
    <message>
        <source>相同修改日期</source>
        <translation>Same modified date</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>相同磁盘</source>
        <translation>Same drive</translation>
    </message>
    <message>
        <source>文件夹与路径</source>
        <translation>Folders and paths</translation>
    </message>
    <message>
        <source>相同的文件夹名称</source>
        <translation>Same folder name</translation>
    </message>
    <message>
        <source>匹配完整路径</source>
        <translation>Match full path</translation>
    </message>
    <message>
        <source>匹配文件夹路径深度</source>
        <translation>Folder path depth</translation>
    </message>
    <message>
        <source>匹配扫描位置以下路径</source>
        <translation>Match path under scan root</translation>
    </message>
    <message>
        <source>忽略在同一文件夹的重复组别</source>
        <translation>Ignore duplicate groups in same folder</translation>
    </message>
    <message>
        <source>文本匹配选项</source>
        <translation>Text matching options</translation>
    </message>
    <message>
        <source>大小写敏感</source>
        <translation>Case sensitive</translation>
    </message>
    <message>
        <source>相似文本 - 容差</source>
        <translation>Similar text tolerance</translation>
    </message>
    <message>
        <source>相似文件名之间最多相差的字符数</source>
        <translation>Maximum number of characters by which similar file names may differ</translation>
    </message>
    <message>
        <source>图片匹配配置</source>
        <translation>Image match settings</translation>
    </message>
    <message>
        <source>匹配RAW图像时使用内嵌JPG图像（较快）</source>
        <translation>Use embedded JPEG in RAW files (faster)</translation>
    </message>
    <message>
        <source>性能</source>
        <translation>Performance</translation>
    </message>
    <message>
        <source>使用图片特征值缓存</source>
        <translation>Use image feature cache</translation>
    </message>
    <message>
        <source>图片标签</source>
        <translation>Image tags</translation>
    </message>
    <message>
        <source>匹配精度</source>
        <translation>Match precision</translation>
    </message>
    <message>
        <source>图像相似度</source>
        <translation>Image similarity</translation>
    </message>
    <message>
        <source>尺寸约束</source>
        <translation>Dimension constraints</translation>
    </message>
    <message>
        <source>相同尺寸</source>
        <translation>Same dimensions</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>Aspect ratio</translation>
    </message>
    <message>
        <source>相同长宽比</source>
        <translation>Same aspect ratio</translation>
    </message>
    <message>
        <source>变换匹配</source>
        <translation>Transform matching</translation>
    </message>
    <message>
        <source>查找旋转过的</source>
        <translation>Find rotated</translation>
    </message>
    <message>
        <source>查找翻转过的</source>
        <translation>Find flipped</translation>
    </message>
    <message>
        <source>同时要求颜色分布（直方图）一致</source>
        <translation>Also require the same colour distribution</translation>
    </message>
    <message>
        <source>时间分组</source>
        <translation>Time grouping</translation>
    </message>
    <message>
        <source>按摄制时间分组</source>
        <translation>Group by shot time</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> s</translation>
    </message>
    <message>
        <source>摄制时间最多相差</source>
        <translation>Maximum difference in shot time</translation>
    </message>
    <message>
        <source>GPS分组</source>
        <translation>Group by GPS</translation>
    </message>
    <message>
        <source>按GPS地理位置分组</source>
        <translation>Group by GPS location</translation>
    </message>
    <message>
        <source>拍摄地点最多相距</source>
        <translation>Maximum distance between locations</translation>
    </message>
    <message>
        <source>匹配方式</source>
        <translation>Match method</translation>
    </message>
    <message>
        <source>仅按标签匹配时，请至少将一个标签设为「必须匹配」</source>
        <translation>To match by tags only, set at least one tag to “Must match”</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>匹配时长</source>
        <translation>Match duration</translation>
    </message>
    <message>
        <source>忽略指向同一文件的硬链接</source>
        <translation>Ignore hard links to the same file</translation>
    </message>
    <message>
        <source>硬链接只是同一份数据的另一个名称，移除它不会释放空间。</source>
        <translation>A hard link is another name for the same data; removing it frees no space.</translation>
    </message>
    <message>
        <source>标签</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>匹配</source>
        <translation>Match</translation>
    </message>
    <message>
        <source>勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组</source>
        <translation>Checked = tag matching on; unchecked = ignore tags in this group</translation>
    </message>
    <message>
        <source>+ 添加</source>
        <translation>+ Add</translation>
    </message>
    <message>
        <source>视频匹配配置</source>
        <translation>Video match settings</translation>
    </message>
    <message>
        <source>字节采样近似比对，并非逐帧视频指纹。</source>
        <translation>Byte sampling approximation, not per-frame video fingerprint.</translation>
    </message>
    <message>
        <source>时:分:秒.毫秒</source>
        <translation>Hours:minutes:seconds.milliseconds</translation>
    </message>
    <message>
        <source>视频文件标签</source>
        <translation>Video tags</translation>
    </message>
    <message>
        <source>已复制 %1 个文件</source>
        <translation>Copied %1 files</translation>
    </message>
    <message>
        <source>无法写入文件。</source>
        <translation>Cannot write file.</translation>
    </message>
    <message>
        <source>无法写入脚本。</source>
        <translation>Cannot write script.</translation>
    </message>
    <message>
        <source>未知导出格式。</source>
        <translation>Unknown export format.</translation>
    </message>
    <message>
        <source>批处理脚本无法准确指明该文件，已写为注释: %1</source>
        <translation>A batch script cannot refer to this file exactly; written as a comment: %1</translation>
    </message>
    <message>
        <source>Mirrix 重复文件扫描报告</source>
        <translation>Mirrix duplicate scan report</translation>
    </message>
    <message>
        <source>生成时间: %1</source>
        <translation>Generated: %1</translation>
    </message>
    <message>
        <source>扫描模式: %1</source>
        <translation>Scan mode: %1</translation>
    </message>
    <message>
        <source>范围: 仅已勾选文件</source>
        <translation>Scope: checked files only</translation>
    </message>
    <message>
        <source>说明: 路径已脱敏（用户名已隐藏）</source>
        <translation>Note: paths redacted (username hidden)</translation>
    </message>
    <message>
        <source>[组 %1]</source>
        <translation>[Group %1]</translation>
    </message>
    <message>
        <source> 键: %1</source>
        <translation> Key: %1</translation>
    </message>
    <message>
        <source>  (%1 个文件)</source>
        <translation>  (%1 files)</translation>
    </message>
    <message>
        <source>
部分失败：
</source>
        <translation>
Partial failures:
</translation>
    </message>
    <message>
        <source>已按规则自动勾选待处理文件</source>
        <translation>Auto-selected files by rule</translation>
    </message>
    <message>
        <source>已勾选各组重复项（默认保留每组第一个）</source>
        <translation>Duplicates checked in each group (first kept by default)</translation>
    </message>
    <message>
        <source>已反选</source>
        <translation>Selection inverted</translation>
    </message>
    <message>
        <source>正在更新勾选…</source>
        <translation>Updating the check marks…</translation>
    </message>
    <message>
        <source>已停止，其余文件未处理</source>
        <translation>Stopped; the other files were not processed</translation>
    </message>
    <message>
        <source>请先勾选要处理的文件。</source>
        <translation>Select files to process first.</translation>
    </message>
    <message>
        <source>将把 %1 个文件移动到备份目录：
%2
是否继续？</source>
        <translation>Move %1 files to backup folder:
%2
Continue?</translation>
    </message>
    <message>
        <source>确认备份移动</source>
        <translation>Confirm backup move</translation>
    </message>
    <message>
        <source>正在备份移动文件… (%1/%2)</source>
        <translation>Moving to backup… (%1/%2)</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>已备份移动 %1 个文件。%2
请重新扫描以刷新结果。</source>
        <translation>Moved %1 files to backup. %2
Rescan to refresh.</translation>
    </message>
    <message>
        <source>请先勾选要删除的文件。</source>
        <translation>Select files to delete first.</translation>
    </message>
    <message>
        <source>正在备份并移除文件… (%1/%2)</source>
        <translation>Backup and remove… (%1/%2)</translation>
    </message>
    <message>
        <source>备份警告</source>
        <translation>Backup warning</translation>
    </message>
    <message>
        <source>部分文件备份失败：
%1</source>
        <translation>Some backups failed:
%1</translation>
    </message>
    <message>
        <source>已备份并移除 %1 个文件。请重新扫描以刷新结果。</source>
        <translation>Backed up and removed %1 files. Rescan to refresh.</translation>
    </message>
    <message>
        <source>永久删除确认</source>
        <translation>Confirm permanent delete</translation>
    </message>
    <message>
        <source>即将永久删除 %1 个文件，此操作不可撤销。是否继续？</source>
        <translation>Permanently delete %1 files? This cannot be undone.</translation>
    </message>
    <message>
        <source>正在移除文件… (%1/%2)</source>
        <translation>Removing files… (%1/%2)</translation>
    </message>
    <message>
        <source>请重新扫描以刷新结果。</source>
        <translation>Rescan to refresh results.</translation>
    </message>
    <message>
        <source>已处理 %1 个文件。%2</source>
        <translation>Processed %1 files. %2</translation>
    </message>
    <message>
        <source>正在读取备份索引…</source>
        <translation>Reading the backup index…</translation>
    </message>
    <message>
        <source>备份索引为空。</source>
        <translation>Backup index is empty.</translation>
    </message>
    <message>
        <source>确认恢复</source>
        <translation>Confirm restore</translation>
    </message>
    <message>
        <source>将恢复：
%1</source>
        <translation>Will restore:
%1</translation>
    </message>
    <message>
        <source>正在恢复文件… (%1/%2)</source>
        <translation>Restoring files… (%1/%2)</translation>
    </message>
    <message>
        <source>已恢复 %1 个文件。</source>
        <translation>Restored %1 files.</translation>
    </message>
    <message>
        <source>已再次移除 %1 个文件。</source>
        <translation>Removed %1 files again.</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>文件已恢复。</source>
        <translation>File restored.</translation>
    </message>
    <message>
        <source>快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。</source>
        <translation>Fast, safe duplicate finder and cleaner. Supports general content, image similarity, audio fingerprint, and video thumbnail modes.</translation>
    </message>
    <message>
        <source>便携模式（数据位于程序旁的 \Data）</source>
        <translation>Portable mode (data in \Data next to the app)</translation>
    </message>
    <message>
        <source>标准模式（数据位于用户 AppData）</source>
        <translation>Standard mode (data in user AppData)</translation>
    </message>
    <message>
        <source>版本 %1 · %2 · %3</source>
        <translation>Version %1 · %2 · %3</translation>
    </message>
    <message>
        <source>数据文件夹：%1</source>
        <translation>Data folder: %1</translation>
    </message>
    <message>
        <source>开源致谢</source>
        <translation>Open source acknowledgments</translation>
    </message>
    <message>
        <source>库</source>
        <translation>Library</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>许可</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>CSV 清单 (.csv)</source>
        <translation>CSV list (.csv)</translation>
    </message>
    <message>
        <source>文本清单 (.txt)</source>
        <translation>Text list (.txt)</translation>
    </message>
    <message>
        <source>复制文件到文件夹</source>
        <translation>Copy files to folder</translation>
    </message>
    <message>
        <source>生成批处理脚本 (.bat)</source>
        <translation>Generate batch script (.bat)</translation>
    </message>
    <message>
        <source>文本 (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>批处理 (*.bat)</source>
        <translation>Batch (*.bat)</translation>
    </message>
    <message>
        <source>选择目标文件夹</source>
        <translation>Choose target folder</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>导出扫描结果</source>
        <translation>Export scan results</translation>
    </message>
    <message>
        <source>导出格式</source>
        <translation>Export format</translation>
    </message>
    <message>
        <source>运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”</source>
        <translation>Running the script deletes every file listed in it, including the copies to keep. To delete only the checked files, turn on “Export checked files only”.</translation>
    </message>
    <message>
        <source>输出路径：</source>
        <translation>Output path:</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>仅导出已勾选的文件</source>
        <translation>Export checked files only</translation>
    </message>
    <message>
        <source>包含分组键与修改时间</source>
        <translation>Include group key and modified time</translation>
    </message>
    <message>
        <source>路径脱敏（隐藏用户名，便于分享）</source>
        <translation>Redact paths (hide username)</translation>
    </message>
    <message>
        <source>脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件</source>
        <translation>A redacted batch script is for reading only: it does not delete files whose paths have the user name hidden</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Stopping…</translation>
    </message>
    <message>
        <source>正在处理</source>
        <translation>Working</translation>
    </message>
    <message>
        <source>完成当前文件后停止</source>
        <translation>Stops after the current file</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>移入回收站（可恢复）</source>
        <translation>Move to Recycle Bin</translation>
    </message>
    <message>
        <source>永久删除</source>
        <translation>Delete permanently</translation>
    </message>
    <message>
        <source>移动到指定文件夹</source>
        <translation>Move to folder</translation>
    </message>
    <message>
        <source>删除后创建符号链接</source>
        <translation>Create symbolic link after delete</translation>
    </message>
    <message>
        <source>删除后创建硬链接</source>
        <translation>Create hard link after delete</translation>
    </message>
    <message>
        <source>文件移除</source>
        <translation>Remove files</translation>
    </message>
    <message>
        <source>即将处理 %1 个文件。请选择移除方式：</source>
        <translation>About to process %1 files. Choose removal method:</translation>
    </message>
    <message>
        <source>移除方式</source>
        <translation>Removal method</translation>
    </message>
    <message>
        <source>目标文件夹：</source>
        <translation>Target folder:</translation>
    </message>
    <message>
        <source>链接目标：</source>
        <translation>Link target:</translation>
    </message>
    <message>
        <source>保留的文件路径（用于创建链接）</source>
        <translation>Path to keep (for links)</translation>
    </message>
    <message>
        <source>先备份再创建链接时可留空：每个链接指向本组中未勾选的文件</source>
        <translation>May be left empty when backing up first: each link then points to the unchecked file in its group</translation>
    </message>
    <message>
        <source>移除前先备份</source>
        <translation>Backup before remove</translation>
    </message>
    <message>
        <source>哈希值工具 - Mirrix</source>
        <translation>Hash tool - Mirrix</translation>
    </message>
    <message>
        <source>+ 选择文件</source>
        <translation>+ Select files</translation>
    </message>
    <message>
        <source>+ 选择文件夹</source>
        <translation>+ Select folder</translation>
    </message>
    <message>
        <source>重新计算</source>
        <translation>Recalculate</translation>
    </message>
    <message>
        <source>算法</source>
        <translation>Algorithm</translation>
    </message>
    <message>
        <source>添加文件夹时包含其所有下级文件夹中的文件</source>
        <translation>Adding a folder also adds the files in all its subfolders</translation>
    </message>
    <message>
        <source>哈希值</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>可将文件或文件夹拖放到此窗口</source>
        <translation>Files and folders can be dropped here</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Select files</translation>
    </message>
    <message>
        <source>选择文件夹</source>
        <translation>Select folder</translation>
    </message>
    <message>
        <source>正在查找文件…</source>
        <translation>Finding files…</translation>
    </message>
    <message>
        <source>正在计算哈希…</source>
        <translation>Computing hashes…</translation>
    </message>
    <message>
        <source>复制：哈希值</source>
        <translation>Copy: hash</translation>
    </message>
    <message>
        <source>复制：文件名</source>
        <translation>Copy: file name</translation>
    </message>
    <message>
        <source>图片对比</source>
        <translation>Compare images</translation>
    </message>
    <message>
        <source>文件 A</source>
        <translation>File A</translation>
    </message>
    <message>
        <source>文件 B</source>
        <translation>File B</translation>
    </message>
    <message>
        <source>正在读取…</source>
        <translation>Reading…</translation>
    </message>
    <message>
        <source>日志为空。</source>
        <translation>The log is empty.</translation>
    </message>
    <message>
        <source>显示 %1 条，共 %2 条</source>
        <translation>%1 of %2 entries shown</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Operation log</translation>
    </message>
    <message>
        <source>筛选日志</source>
        <translation>Filter the log</translation>
    </message>
    <message>
        <source>复制所选</source>
        <translation>Copy selected</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>将删除目录下的全部图片哈希/直方图缓存：
%1

下次图片扫描会重新计算，可能稍慢。是否继续？</source>
        <translation>Delete all image hash/histogram cache under:
%1

Next image scan will be slower. Continue?</translation>
    </message>
    <message>
        <source>清空图片特征缓存</source>
        <translation>Clear image feature cache</translation>
    </message>
    <message>
        <source>图片特征缓存已清空。</source>
        <translation>Image feature cache cleared.</translation>
    </message>
    <message>
        <source>部分缓存文件无法删除。</source>
        <translation>Some cache files could not be deleted.</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>⚙  常规</source>
        <translation>⚙  General</translation>
    </message>
    <message>
        <source>🎨  主题</source>
        <translation>🎨  Theme</translation>
    </message>
    <message>
        <source>ℹ  关于程序</source>
        <translation>ℹ  About</translation>
    </message>
    <message>
        <source>常规设置</source>
        <translation>General settings</translation>
    </message>
    <message>
        <source>关闭主窗口时</source>
        <translation>When closing the main window</translation>
    </message>
    <message>
        <source>最小化到系统托盘（推荐）</source>
        <translation>Minimize to system tray (recommended)</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Exit application</translation>
    </message>
    <message>
        <source>扫描</source>
        <translation>Scan</translation>
    </message>
    <message>
        <source>扫描完成后播放提示音</source>
        <translation>Beep when scan completes</translation>
    </message>
    <message>
        <source>扫描开始前显示确认对话框</source>
        <translation>Show confirmation before scan</translation>
    </message>
    <message>
        <source>关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。</source>
        <translation>If disabled, Start Scan runs immediately; use “Don't show again” in the dialog.</translation>
    </message>
    <message>
        <source>内容指纹算法</source>
        <translation>Content fingerprint algorithm</translation>
    </message>
    <message>
        <source>MD5（默认，沿用现有指纹缓存）</source>
        <translation>MD5 (default, keeps existing fingerprint cache)</translation>
    </message>
    <message>
        <source>BLAKE3（更快、更强；切换后重建缓存）</source>
        <translation>BLAKE3 (faster, stronger; cache rebuilds after switch)</translation>
    </message>
    <message>
        <source>仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。</source>
        <translation>Only affects the quick and full hashes of exact same-content scans; similar-content sampling keeps MD5.</translation>
    </message>
    <message>
        <source>缓存与数据</source>
        <translation>Cache &amp; data</translation>
    </message>
    <message>
        <source>图片特征缓存可加快重复图片的扫描。位置：</source>
        <translation>Image feature cache speeds up duplicate image scans. Location:</translation>
    </message>
    <message>
        <source>清除已缓存的感知哈希与直方图，下次扫描会重新计算</source>
        <translation>Clears cached perceptual hashes and histograms; next scan recalculates them</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>浅色（Fusion）</source>
        <translation>Light (Fusion)</translation>
    </message>
    <message>
        <source>深色（Fusion）</source>
        <translation>Dark (Fusion)</translation>
    </message>
    <message>
        <source>使用 Qt Fusion 样式，立即生效并自动保存。</source>
        <translation>Uses the Qt Fusion style. Applies immediately and is saved.</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>Restore backup</translation>
    </message>
    <message>
        <source>选择要恢复的文件：</source>
        <translation>Files to restore:</translation>
    </message>
    <message>
        <source>按路径筛选</source>
        <translation>Filter by path</translation>
    </message>
    <message>
        <source>
无法放回的文件（%1 个）：
</source>
        <translation>
Files that cannot be put back (%1):
</translation>
    </message>
    <message>
        <source>
无法再次移除的文件（%1 个）：
</source>
        <translation>
Files that cannot be removed again (%1):
</translation>
    </message>
    <message>
        <source>%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。</source>
        <translation>%1 files, %2, will not be removed: links are only made where the path is free. To replace the files by links, back up first.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站，无法找回。</source>
        <translation>%1 files, %2, will be deleted permanently; they do not go to the Recycle Bin and cannot be brought back.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。</source>
        <translation>%1 files, %2, will be deleted permanently; they do not go to the Recycle Bin, but can be made again from the kept copies.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移入回收站，清空回收站后才释放空间。</source>
        <translation>%1 files, %2, will be moved to the Recycle Bin; space is freed when it is emptied.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不会永久删除。</source>
        <translation>%1 files, %2, will be moved to the backup folder; nothing is deleted permanently.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用回收站。</source>
        <translation>%1 files, %2, will be moved to the backup folder; the Recycle Bin is not used.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。</source>
        <translation>%1 files, %2, will be moved to the backup folder; the target folder is not used.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。</source>
        <translation>%1 files, %2, will be moved to the backup folder; links take their place.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到目标文件夹。</source>
        <translation>%1 files, %2, will be moved to the target folder.</translation>
    </message>
    <message>
        <source>不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容</source>
        <translation>Unless checked, only samples are compared before recycling, moving and backing up; before deleting permanently and linking, whole contents always are</translation>
    </message>
    <message>
        <source>仍占用</source>
        <translation>Held</translation>
    </message>
    <message>
        <source>保留记录（天）：</source>
        <translation>Keep records (days):</translation>
    </message>
    <message>
        <source>全部处理</source>
        <translation>Process all</translation>
    </message>
    <message>
        <source>内容与要保留的文件不同，已保留: %1</source>
        <translation>Content differs from the file to keep; left alone: %1</translation>
    </message>
    <message>
        <source>决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除</source>
        <translation>Decides whether “Backup before remove” is already checked when the removal dialog opens; files backed up go to the backup folder and are not deleted</translation>
    </message>
    <message>
        <source>删除更早的记录</source>
        <translation>Remove older records</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>Remove record</translation>
    </message>
    <message>
        <source>回收站中保留 %1</source>
        <translation>%1 held in the recycle bin</translation>
    </message>
    <message>
        <source>在历史中显示</source>
        <translation>Show in history</translation>
    </message>
    <message>
        <source>备份中保留：%1</source>
        <translation>Held in backup: %1</translation>
    </message>
    <message>
        <source>备份文件夹中保留 %1</source>
        <translation>%1 held in the backup folder</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>Failed: %1</translation>
    </message>
    <message>
        <source>将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？</source>
        <translation>%1 cleaning records will be deleted. Files are not touched, but these cleanings can no longer be undone here. Continue?</translation>
    </message>
    <message>
        <source>将把 %1 个文件放回原处。是否继续？</source>
        <translation>%1 files will be put back where they were. Continue?</translation>
    </message>
    <message>
        <source>将再次移除 %1 个文件（%2）。是否继续？</source>
        <translation>%1 files will be removed again (%2). Continue?</translation>
    </message>
    <message>
        <source>将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？</source>
        <translation>The files of this cleaning in the backup folder (%1) will be deleted permanently and can no longer be restored from there. Continue?</translation>
    </message>
    <message>
        <source>已中断</source>
        <translation>Interrupted</translation>
    </message>
    <message>
        <source>已停止，未处理: %1</source>
        <translation>Stopped; left alone: %1</translation>
    </message>
    <message>
        <source>已删除 %1 个备份文件。</source>
        <translation>Deleted %1 backup files.</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Complete</translation>
    </message>
    <message>
        <source>已撤销</source>
        <translation>Undone</translation>
    </message>
    <message>
        <source>已放回原处</source>
        <translation>Put back</translation>
    </message>
    <message>
        <source>已移除</source>
        <translation>Removed</translation>
    </message>
    <message>
        <source>已释放</source>
        <translation>Freed</translation>
    </message>
    <message>
        <source>已释放 %1</source>
        <translation>freed %1</translation>
    </message>
    <message>
        <source>所有者或权限与链接目标不同，未处理: %1</source>
        <translation>Owner or permissions differ from those of the link target; left alone: %1</translation>
    </message>
    <message>
        <source>撤销了 %1</source>
        <translation>Undoing of %1</translation>
    </message>
    <message>
        <source>撤销所选文件</source>
        <translation>Undo selected</translation>
    </message>
    <message>
        <source>撤销此次清理</source>
        <translation>Undo this run</translation>
    </message>
    <message>
        <source>撤销清理</source>
        <translation>Undo cleaning</translation>
    </message>
    <message>
        <source>重新清理</source>
        <translation>Clean again</translation>
    </message>
    <message>
        <source>文件仍在回收站中，可从那里恢复: %1</source>
        <translation>The file is still in the Recycle Bin and can be restored from there: %1</translation>
    </message>
    <message>
        <source>文件已存在，是否替换？
%1</source>
        <translation>The file exists. Replace it?
%1</translation>
    </message>
    <message>
        <source>文件数 / 保留的副本</source>
        <translation>Files / kept copy</translation>
    </message>
    <message>
        <source>文件正被其他程序使用，未处理: %1</source>
        <translation>The file is in use by another program; left alone: %1</translation>
    </message>
    <message>
        <source>方式 / 现在位置</source>
        <translation>Method / where it is now</translation>
    </message>
    <message>
        <source>无法写入操作日志: %1</source>
        <translation>Could not write the operation log: %1</translation>
    </message>
    <message>
        <source>无法写入操作记录，未处理任何文件: %1</source>
        <translation>Could not write the record of the cleaning; no file was touched: %1</translation>
    </message>
    <message>
        <source>无法更新备份索引: %1</source>
        <translation>Could not update the backup index: %1</translation>
    </message>
    <message>
        <source>无法确保要保留的文件已写入磁盘，未处理: %1</source>
        <translation>Could not make sure that the file to keep is on the disk; left alone: %1</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Unreadable</translation>
    </message>
    <message>
        <source>无结果记录</source>
        <translation>No outcome recorded</translation>
    </message>
    <message>
        <source>时间 / 文件</source>
        <translation>Time / file</translation>
    </message>
    <message>
        <source>有 %1 条记录无法删除。</source>
        <translation>%1 records could not be deleted.</translation>
    </message>
    <message>
        <source>有 %1 组将不会留下任何副本。</source>
        <translation>In %1 groups no copy would remain.</translation>
    </message>
    <message>
        <source>正在删除备份… (%1/%2)</source>
        <translation>Deleting backups… (%1/%2)</translation>
    </message>
    <message>
        <source>正在检查文件… (%1/%2)</source>
        <translation>Checking files… (%1/%2)</translation>
    </message>
    <message>
        <source>每次移除前比较全部内容</source>
        <translation>Compare whole contents before every removal</translation>
    </message>
    <message>
        <source>每组取消勾选一个</source>
        <translation>Uncheck one in each group</translation>
    </message>
    <message>
        <source>永久</source>
        <translation>Forever</translation>
    </message>
    <message>
        <source>没有保留的副本</source>
        <translation>No copy remains</translation>
    </message>
    <message>
        <source>没有可以放回的文件。</source>
        <translation>There are no files to put back.</translation>
    </message>
    <message>
        <source>没有可以再次移除的文件。</source>
        <translation>There are no files to remove again.</translation>
    </message>
    <message>
        <source>没有更早的记录。</source>
        <translation>There are no older records.</translation>
    </message>
    <message>
        <source>没有清理记录。</source>
        <translation>There are no cleaning records.</translation>
    </message>
    <message>
        <source>清理历史</source>
        <translation>Cleaning history</translation>
    </message>
    <message>
        <source>清理历史(&amp;C)…</source>
        <translation>&amp;Cleaning history…</translation>
    </message>
    <message>
        <source>目标文件夹包含该文件，未处理: %1</source>
        <translation>The target folder holds the file; left alone: %1</translation>
    </message>
    <message>
        <source>硬链接</source>
        <translation>Hard link</translation>
    </message>
    <message>
        <source>确认替换</source>
        <translation>Confirm replacing</translation>
    </message>
    <message>
        <source>移入回收站</source>
        <translation>Moved to Recycle Bin</translation>
    </message>
    <message>
        <source>删除空文件夹</source>
        <translation>Delete empty folders</translation>
    </message>
    <message>
        <source>移动到文件夹</source>
        <translation>Moved to folder</translation>
    </message>
    <message>
        <source>符号链接</source>
        <translation>Symbolic link</translation>
    </message>
    <message>
        <source>要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1</source>
        <translation>The file to keep is no longer there, or is this file by another path; left alone: %1</translation>
    </message>
    <message>
        <source>部分已撤销</source>
        <translation>Partly undone</translation>
    </message>
    <message>
        <source>部分组不是按内容匹配的，处理前不会比较这些文件的内容。</source>
        <translation>Some groups do not match by content; their files are not compared before they are removed.</translation>
    </message>
    <message>
        <source>释放 %1</source>
        <translation>Free %1</translation>
    </message>
    <message>
        <source>释放备份</source>
        <translation>Free backups</translation>
    </message>
    <message>
        <source>恢复所选</source>
        <translation>Restore selected</translation>
    </message>
    <message>
        <source>正在复制文件… (%1/%2)</source>
        <translation>Copying files… (%1/%2)</translation>
    </message>
    <message>
        <source>正在导出… (%1/%2)</source>
        <translation>Exporting… (%1/%2)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>导出失败。</source>
        <translation>Export failed.</translation>
    </message>
    <message>
        <source>导出警告</source>
        <translation>Export warning</translation>
    </message>
    <message>
        <source>部分文件未能导出：
%1</source>
        <translation>Some files were not exported:
%1</translation>
    </message>
    <message>
        <source>已复制文件到：%1
%2</source>
        <translation>Copied files to: %1
%2</translation>
    </message>
    <message>
        <source>已导出：%1</source>
        <translation>Exported: %1</translation>
    </message>
    <message>
        <source>没有可导出的结果。</source>
        <translation>No results to export.</translation>
    </message>
    <message>
        <source>请指定输出路径。</source>
        <translation>Specify output path.</translation>
    </message>
    <message>
        <source>…… 另有 %1 行，见详细信息</source>
        <translation>… %1 more lines, see the details</translation>
    </message>
    <message>
        <source>…… 另有 %1 行未显示</source>
        <translation>… %1 more lines not shown</translation>
    </message>
    <message>
        <source>链接目标属于另一组，未处理: %1</source>
        <translation>The link target belongs to another group; not processed: %1</translation>
    </message>
    <message>
        <source>没有可链接的保留文件，未处理: %1</source>
        <translation>No kept file to link to; not processed: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件</source>
        <translation>%1 files</translation>
    </message>
    <message>
        <source>共 %1 个文件 @ %2.%3 秒</source>
        <translation>%1 files @ %2.%3 s</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2 字节
修改: %3</source>
        <translation>Path: %1
Size: %2 bytes
Modified: %3</translation>
    </message>
    <message>
        <source>
GPS: %1, %2</source>
        <translation>
GPS: %1, %2</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>程序启动</source>
        <translation>Program started</translation>
    </message>
    <message>
        <source>扫描开始</source>
        <translation>Scan started</translation>
    </message>
    <message>
        <source>备份已恢复</source>
        <translation>Restored from backup</translation>
    </message>
    <message>
        <source>要移除的空文件夹</source>
        <translation>Empty folders to remove</translation>
    </message>
    <message>
        <source>空文件夹已移除</source>
        <translation>Empty folders removed</translation>
    </message>
    <message>
        <source>程序退出</source>
        <translation>Program exited</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Scan finished</translation>
    </message>
    <message>
        <source>按规则勾选</source>
        <translation>Checked by rule</translation>
    </message>
    <message>
        <source>移动到备份</source>
        <translation>Moved to backup</translation>
    </message>
    <message>
        <source>备份并移除</source>
        <translation>Backed up and removed</translation>
    </message>
    <message>
        <source>移除文件</source>
        <translation>Removed files</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>导出副本</source>
        <translation>Exported copies</translation>
    </message>
    <message>
        <source>恢复备份…</source>
        <translation>Restore backup…</translation>
    </message>
    <message>
        <source>结果已清空。切换Tab调整规则后可重新开始扫描。</source>
        <translation>Results cleared. Adjust rules and scan again.</translation>
    </message>
    <message>
        <source>请选中同一组内的两个图片文件进行对比。</source>
        <translation>Select two image files in the same group to compare.</translation>
    </message>
    <message>
        <source>没有匹配的记录。</source>
        <translation>No matching records.</translation>
    </message>
    <message>
        <source>没有匹配的文件。</source>
        <translation>No matching files.</translation>
    </message>
    <message>
        <source>还没有扫描位置。
点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。</source>
        <translation>No scan locations yet.
Click “+ Folder”, choose on the left, or drop or paste folders here.</translation>
    </message>
    <message>
        <source>扫描后在这里显示结果。</source>
        <translation>Results appear here after a scan.</translation>
    </message>
    <message>
        <source>没有找到重复文件。</source>
        <translation>No duplicate files found.</translation>
    </message>
    <message>
        <source>没有找到重复文件夹。</source>
        <translation>No duplicate folders found.</translation>
    </message>
    <message>
        <source>没有列出其余文件。
要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。</source>
        <translation>No remaining files are listed.
To see them, switch on “Show remaining files” for a scan location and scan again.</translation>
    </message>
    <message>
        <source>筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。</source>
        <translation>The filter only changes what the lists show; check marks and batch actions still apply to all results.</translation>
    </message>
</context>
</TS>
