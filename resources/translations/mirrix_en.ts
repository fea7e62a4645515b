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
</context>
</TS>
