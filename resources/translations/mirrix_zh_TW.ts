<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="zh_CN">
<context>
    <name>Mirrix</name>
    <message>
        <source>枚举文件</source>
        <translation>列舉檔案</translation>
    </message>
    <message>
        <source>读取元数据</source>
        <translation>讀取中繼資料</translation>
    </message>
    <message>
        <source>快速哈希</source>
        <translation>快速雜湊</translation>
    </message>
    <message>
        <source>完整哈希</source>
        <translation>完整雜湊</translation>
    </message>
    <message>
        <source>相似内容比对</source>
        <translation>相似內容比對</translation>
    </message>
    <message>
        <source>前缀采样哈希</source>
        <translation>開頭取樣雜湊</translation>
    </message>
    <message>
        <source>采样指纹哈希</source>
        <translation>取樣指紋雜湊</translation>
    </message>
    <message>
        <source>图片感知哈希</source>
        <translation>圖片感知雜湊</translation>
    </message>
    <message>
        <source>[%1] %2  已枚举 %3  已处理 %4/%5</source>
        <translation>[%1] %2  已列舉 %3  已處理 %4/%5</translation>
    </message>
    <message>
        <source>文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒</source>
        <translation>檔案 %1 · 重複群組 %2 · 資料夾群組 %3 · 其餘 %4 · 可釋放約 %5 · 耗時 %6 秒</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>查看操作日志</source>
        <translation>檢視操作記錄</translation>
    </message>
    <message>
        <source>打开数据文件夹</source>
        <translation>開啟資料存放位置</translation>
    </message>
    <message>
        <source>完整退出</source>
        <translation>完全結束</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>哈希工具</source>
        <translation>雜湊工具</translation>
    </message>
    <message>
        <source>选项…</source>
        <translation>選項…</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>語言(&amp;L)</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>关于 Mirrix</source>
        <translation>關於 Mirrix</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 零广告 · 图片哈希: %2</source>
        <translation>%1 · 本機執行 · 零廣告 · 圖片雜湊：%2</translation>
    </message>
    <message>
        <source>① 选择位置 → ② 匹配规则 → ③ 预览并清理</source>
        <translation>① 選擇位置 → ② 比對規則 → ③ 預覽並清理</translation>
    </message>
    <message>
        <source>选择一个路径开始查重</source>
        <translation>選擇資料夾以開始尋找重複檔案</translation>
    </message>
    <message>
        <source>选好后点击左侧「开始扫描」</source>
        <translation>選好後按一下左側的「開始掃描」</translation>
    </message>
    <message>
        <source>配置匹配规则</source>
        <translation>設定比對規則</translation>
    </message>
    <message>
        <source>预览重复项并清理</source>
        <translation>預覽重複項目並清理</translation>
    </message>
    <message>
        <source>勾选要移除的副本，建议先备份再删除</source>
        <translation>勾選要移除的副本，建議先備份再刪除</translation>
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
        <translation>勾選重複項目並進行清理</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>请先勾选启用至少一个扫描位置。</source>
        <translation>請先啟用至少一個掃描位置。</translation>
    </message>
    <message>
        <source>扫描进行中：已锁定规则与位置页，请勿修改扫描参数。</source>
        <translation>掃描進行中：規則與位置頁面已鎖定，請勿變更掃描參數。</translation>
    </message>
    <message>
        <source>确认开始扫描</source>
        <translation>確認開始掃描</translation>
    </message>
    <message>
        <source>开始扫描</source>
        <translation>開始掃描</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>不再显示此确认</source>
        <translation>不再顯示此確認</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 图片哈希: %2</source>
        <translation>%1 · 本機執行 · 圖片雜湊：%2</translation>
    </message>
    <message>
        <source>正在取消...</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>扫描完成 · 图片哈希后端: %1</source>
        <translation>掃描完成 · 圖片雜湊後端：%1</translation>
    </message>
    <message>
        <source>位于回收站中</source>
        <translation>位於資源回收筒中</translation>
    </message>
    <message>
        <source>位于备份文件夹中</source>
        <translation>位於備份資料夾中</translation>
    </message>
    <message>
        <source>位于快照中</source>
        <translation>位於快照中</translation>
    </message>
    <message>
        <source>未能读取 %1 项：%2</source>
        <translation>未能讀取 %1 項：%2</translation>
    </message>
    <message>
        <source>扫描失败</source>
        <translation>掃描失敗</translation>
    </message>
    <message>
        <source>便携模式</source>
        <translation>可攜模式</translation>
    </message>
    <message>
        <source>标准模式</source>
        <translation>標準模式</translation>
    </message>
    <message>
        <source>程序仍在托盘运行。可通过托盘菜单一键完整退出。</source>
        <translation>程式仍在系統匣中執行。可透過系統匣選單完全結束。</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>顯示主視窗</translation>
    </message>
    <message>
        <source>一键完整退出</source>
        <translation>完全結束</translation>
    </message>
    <message>
        <source>Mirrix · 重复文件查找与清理</source>
        <translation>Mirrix · 尋找與清理重複檔案</translation>
    </message>
    <message>
        <source>重复文件清理</source>
        <translation>重複檔案清理</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>步驟</translation>
    </message>
    <message>
        <source>选择位置</source>
        <translation>選擇位置</translation>
    </message>
    <message>
        <source>匹配规则</source>
        <translation>比對規則</translation>
    </message>
    <message>
        <source>预览清理</source>
        <translation>預覽與清理</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>扫描过程中发生未知错误</source>
        <translation>掃描時發生未知的錯誤</translation>
    </message>
    <message>
        <source>扫描已取消</source>
        <translation>掃描已取消</translation>
    </message>
    <message>
        <source>可移动磁盘</source>
        <translation>卸除式磁碟</translation>
    </message>
    <message>
        <source>本地磁盘</source>
        <translation>本機磁碟</translation>
    </message>
    <message>
        <source>网络驱动器</source>
        <translation>網路磁碟機</translation>
    </message>
    <message>
        <source>光驱</source>
        <translation>光碟機</translation>
    </message>
    <message>
        <source>内存盘</source>
        <translation>RAM 磁碟</translation>
    </message>
    <message>
        <source>恢复失败: %1</source>
        <translation>還原失敗：%1</translation>
    </message>
    <message>
        <source>备份文件已损坏，未恢复: %1</source>
        <translation>備份檔案已損壞，未還原: %1</translation>
    </message>
    <message>
        <source>已恢复，但备份无法删除: %1</source>
        <translation>已還原，但無法刪除備份: %1</translation>
    </message>
    <message>
        <source>备份索引无法写入: %1</source>
        <translation>無法寫入備份索引: %1</translation>
    </message>
    <message>
        <source>原路径已存在文件，已取消恢复: %1</source>
        <translation>原路徑已有檔案，已取消還原：%1</translation>
    </message>
    <message>
        <source>无法移动到备份目录: %1</source>
        <translation>無法移至備份資料夾：%1</translation>
    </message>
    <message>
        <source>文件在扫描后已更改，已保留: %1</source>
        <translation>檔案在掃描後已變更，已保留：%1</translation>
    </message>
    <message>
        <source>要保留的文件已更改，未处理: %1</source>
        <translation>要保留的檔案已變更，未處理：%1</translation>
    </message>
    <message>
        <source>与要保留的文件可能是同一个文件，未处理: %1</source>
        <translation>可能與要保留的檔案是同一個檔案，未處理：%1</translation>
    </message>
    <message>
        <source>无法创建目标目录: %1</source>
        <translation>無法建立目標資料夾：%1</translation>
    </message>
    <message>
        <source>目标已存在: %1</source>
        <translation>目標檔案已存在：%1</translation>
    </message>
    <message>
        <source>链接路径已存在: %1</source>
        <translation>連結路徑已存在：%1</translation>
    </message>
    <message>
        <source>没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1</source>
        <translation>沒有建立符號連結的權限（請開啟開發人員模式或以系統管理員身分執行）：%1</translation>
    </message>
    <message>
        <source>无法删除: %1</source>
        <translation>無法刪除：%1</translation>
    </message>
    <message>
        <source>文件夹已不为空，或不允许删除: %1</source>
        <translation>資料夾已不為空，或不允許刪除：%1</translation>
    </message>
    <message>
        <source>无法移动: %1</source>
        <translation>無法移動：%1</translation>
    </message>
    <message>
        <source>无法复制: %1</source>
        <translation>無法複製：%1</translation>
    </message>
    <message>
        <source>无法创建硬链接: %1</source>
        <translation>無法建立硬式連結：%1</translation>
    </message>
    <message>
        <source>无法创建符号链接: %1</source>
        <translation>無法建立符號連結：%1</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>找不到檔案：%1</translation>
    </message>
    <message>
        <source>链接目标不是可用的文件: %1</source>
        <translation>連結目標不是可用的檔案：%1</translation>
    </message>
    <message>
        <source>原文件未能放回，可从备份中恢复: %1</source>
        <translation>無法將檔案放回原處，可從備份還原：%1</translation>
    </message>
    <message>
        <source>无法放入回收站，已保留: %1</source>
        <translation>無法放入資源回收筒，已保留：%1</translation>
    </message>
    <message>
        <source>无法写入清理记录: %1 (%2)</source>
        <translation>無法寫入清理記錄: %1 (%2)</translation>
    </message>
    <message>
        <source>清理记录正被另一程序使用: %1</source>
        <translation>清理記錄正由另一個程式使用: %1</translation>
    </message>
    <message>
        <source>清理记录已损坏，只读到完好部分: %1</source>
        <translation>清理記錄已損壞，只讀取了完好的部分: %1</translation>
    </message>
    <message>
        <source>无法读取清理记录（已损坏或来自另一台计算机）: %1</source>
        <translation>無法讀取清理記錄（已損壞或來自另一台電腦）: %1</translation>
    </message>
    <message>
        <source>无法重新生成，当时未与要保留的文件比较内容: %1</source>
        <translation>無法重新產生，當時未與要保留的檔案比對內容：%1</translation>
    </message>
    <message>
        <source>无法重新生成，要保留的文件不存在或已更改: %1 (%2)</source>
        <translation>無法重新產生，要保留的檔案不存在或已變更：%1 (%2)</translation>
    </message>
    <message>
        <source>已不在回收站中，无法恢复: %1</source>
        <translation>已不在資源回收筒中，無法還原：%1</translation>
    </message>
    <message>
        <source>文件已不在此处或已更改，未恢复: %1 (%2)</source>
        <translation>檔案已不在此處或已變更，未還原：%1 (%2)</translation>
    </message>
    <message>
        <source>文件夹或磁盘不存在，未恢复: %1 (%2)</source>
        <translation>資料夾或磁碟機不存在，未還原：%1 (%2)</translation>
    </message>
    <message>
        <source>已恢复，但原链接无法删除: %1</source>
        <translation>已還原，但無法刪除原連結：%1</translation>
    </message>
    <message>
        <source>已恢复，但无法还原修改时间或权限: %1</source>
        <translation>已還原，但無法還原修改時間或權限：%1</translation>
    </message>
    <message>
        <source>批量移入回收站失败 (code %1, %2 个文件)</source>
        <translation>無法將檔案移至資源回收筒（代碼 %1，%2 個檔案）</translation>
    </message>
    <message>
        <source>未移入回收站，仍在原处: %1</source>
        <translation>未移至資源回收筒，仍在原處：%1</translation>
    </message>
    <message>
        <source>保留最新文件</source>
        <translation>保留最新的檔案</translation>
    </message>
    <message>
        <source>保留最旧文件</source>
        <translation>保留最舊的檔案</translation>
    </message>
    <message>
        <source>保留最上层目录</source>
        <translation>保留最上層的檔案</translation>
    </message>
    <message>
        <source>保留最深路径</source>
        <translation>保留最深層的檔案</translation>
    </message>
    <message>
        <source>选择备份目录</source>
        <translation>選擇備份資料夾</translation>
    </message>
    <message>
        <source>高级选项（保留规则、备份等）</source>
        <translation>進階選項（保留規則、備份等）</translation>
    </message>
    <message>
        <source>保留规则</source>
        <translation>保留規則</translation>
    </message>
    <message>
        <source>跳过隐藏文件</source>
        <translation>略過隱藏檔</translation>
    </message>
    <message>
        <source>排除系统目录</source>
        <translation>排除系統資料夾</translation>
    </message>
    <message>
        <source>删除前自动备份</source>
        <translation>刪除前自動備份</translation>
    </message>
    <message>
        <source>备份目录</source>
        <translation>備份資料夾</translation>
    </message>
    <message>
        <source>选择要扫描的磁盘 / 分区</source>
        <translation>選擇要掃描的磁碟機 / 磁碟分割</translation>
    </message>
    <message>
        <source>勾选分区后加入扫描列表（不会立即开始扫描）。
系统目录仍会默认排除。建议慎选系统盘整盘扫描。</source>
        <translation>勾選磁碟分割以加入掃描清單（不會立即開始掃描）。
系統資料夾預設仍會排除。掃描整個系統磁碟機前請審慎考慮。</translation>
    </message>
    <message>
        <source>加入扫描列表</source>
        <translation>加入掃描清單</translation>
    </message>
    <message>
        <source>未勾选任何磁盘。</source>
        <translation>尚未勾選任何磁碟機。</translation>
    </message>
    <message>
        <source>系统盘确认</source>
        <translation>系統磁碟機確認</translation>
    </message>
    <message>
        <source>您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。
是否加入扫描列表？</source>
        <translation>您勾選了系統磁碟機。掃描整個磁碟機需要較長時間，系統資料夾仍會排除。
要加入掃描清單嗎？</translation>
    </message>
    <message>
        <source>确认添加</source>
        <translation>確認新增</translation>
    </message>
    <message>
        <source>将 %1 个分区加入扫描列表（不会立即开始扫描）：
%2</source>
        <translation>將 %1 個磁碟分割加入掃描清單（不會立即開始掃描）：
%2</translation>
    </message>
    <message>
        <source>未检测到可扫描的磁盘或分区。</source>
        <translation>找不到可掃描的磁碟機或磁碟分割。</translation>
    </message>
    <message>
        <source>选择要排除的文件夹</source>
        <translation>選擇要排除的資料夾</translation>
    </message>
    <message>
        <source>排除目录</source>
        <translation>排除的資料夾</translation>
    </message>
    <message>
        <source>+ 排除</source>
        <translation>+ 排除</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>從清單移除</translation>
    </message>
    <message>
        <source>选择一个扫描时不进入的文件夹</source>
        <translation>選擇掃描時不進入的資料夾</translation>
    </message>
    <message>
        <source>从排除目录中移除选中的文件夹</source>
        <translation>從排除的資料夾中移除選取的資料夾</translation>
    </message>
    <message>
        <source>可操作文件夹</source>
        <translation>瀏覽資料夾</translation>
    </message>
    <message>
        <source>浏览文件夹，用右侧的 → 加入扫描位置；
也可以从资源管理器把文件夹拖入扫描列表。</source>
        <translation>瀏覽資料夾，用右側的 → 加入掃描位置；
也可以從檔案總管將資料夾拖曳到掃描清單。</translation>
    </message>
    <message>
        <source>将选中的文件夹加入扫描位置</source>
        <translation>將選取的資料夾加入掃描位置</translation>
    </message>
    <message>
        <source>选择要扫描的文件夹</source>
        <translation>選擇要掃描的資料夾</translation>
    </message>
    <message>
        <source>每行一个扫描位置，状态列=启用/停用，已保护=不扫描。</source>
        <translation>每列一個掃描位置；狀態欄＝啟用/停用，受保護＝不掃描。</translation>
    </message>
    <message>
        <source>+文件夹</source>
        <translation>+ 資料夾</translation>
    </message>
    <message>
        <source>+磁盘</source>
        <translation>+ 磁碟機</translation>
    </message>
    <message>
        <source>移除所选</source>
        <translation>從清單移除</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>清空清單</translation>
    </message>
    <message>
        <source>选择一个文件夹加入扫描位置</source>
        <translation>選擇要加入掃描位置的資料夾</translation>
    </message>
    <message>
        <source>已包含</source>
        <translation>已包含</translation>
    </message>
    <message>
        <source>🔒 已保护</source>
        <translation>🔒 受保護</translation>
    </message>
    <message>
        <source>锁 否</source>
        <translation>未受保護</translation>
    </message>
    <message>
        <source>📂 是</source>
        <translation>📂 是</translation>
    </message>
    <message>
        <source>📂 否</source>
        <translation>📂 否</translation>
    </message>
    <message>
        <source>文件夹名称</source>
        <translation>資料夾名稱</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>已保护</source>
        <translation>受保護</translation>
    </message>
    <message>
        <source>扫描子目录</source>
        <translation>掃描子資料夾</translation>
    </message>
    <message>
        <source>查找重复</source>
        <translation>尋找重複項目</translation>
    </message>
    <message>
        <source>显示其余文件</source>
        <translation>顯示其餘檔案</translation>
    </message>
    <message>
        <source>🔍 查找重复</source>
        <translation>🔍 重複項目</translation>
    </message>
    <message>
        <source>📄 相同文件名</source>
        <translation>📄 相同檔名</translation>
    </message>
    <message>
        <source>🗑 空文件</source>
        <translation>🗑 空檔案</translation>
    </message>
    <message>
        <source>%1
现在找不到这个文件夹。</source>
        <translation>%1
目前找不到這個資料夾。</translation>
    </message>
    <message>
        <source>扫描位置</source>
        <translation>掃描位置</translation>
    </message>
    <message>
        <source>桌面</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>下载</source>
        <translation>下載</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>音乐</source>
        <translation>音樂</translation>
    </message>
    <message>
        <source>视频</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>快捷位置</source>
        <translation>常用位置</translation>
    </message>
    <message>
        <source>本地磁盘 (%1)</source>
        <translation>本機磁碟（%1）</translation>
    </message>
    <message>
        <source>扫描进行中，批量操作已暂停。</source>
        <translation>掃描進行中，批次操作已暫停。</translation>
    </message>
    <message>
        <source>「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。</source>
        <translation>「重複資料夾」為唯讀檢視；如要刪除/匯出，請切換至「重複檔案」索引標籤。</translation>
    </message>
    <message>
        <source>「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。</source>
        <translation>「其餘檔案」為唯讀檢視；請切換至「重複檔案」索引標籤勾選項目。</translation>
    </message>
    <message>
        <source>扫描完成后，在左侧勾选重复项再执行批量操作。</source>
        <translation>掃描完成後，先在左側勾選重複項目，再執行批次操作。</translation>
    </message>
    <message>
        <source>已勾选 %1 个文件</source>
        <translation>已勾選 %1 個檔案</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>群組</translation>
    </message>
    <message>
        <source>文件夹组 #%1</source>
        <translation>資料夾群組 #%1</translation>
    </message>
    <message>
        <source>文件夹路径</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>文件数</source>
        <translation>檔案數</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>容量未知</source>
        <translation>容量不明</translation>
    </message>
    <message>
        <source>%1 / 可用 %2</source>
        <translation>%1 / 可用 %2</translation>
    </message>
    <message>
        <source>无标签</source>
        <translation>無標籤</translation>
    </message>
    <message>
        <source>  ·系统盘</source>
        <translation>  ·系統磁碟機</translation>
    </message>
    <message>
        <source>文件已不存在或无法访问</source>
        <translation>檔案已不存在或無法存取</translation>
    </message>
    <message>
        <source>图片过大，无法预览</source>
        <translation>圖片過大，無法預覽</translation>
    </message>
    <message>
        <source>无法读取此图片</source>
        <translation>無法讀取此圖片</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>修改时间</source>
        <translation>修改時間</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>勾選</translation>
    </message>
    <message>
        <source>文件 / 分组</source>
        <translation>檔案 / 群組</translation>
    </message>
    <message>
        <source>分组 #%1  (%2 个文件, 可回收 %3)</source>
        <translation>群組 #%1  （%2 個檔案，可釋放 %3）</translation>
    </message>
    <message>
        <source>本组所有文件均已勾选，处理后将不保留任何副本。</source>
        <translation>此群組的所有檔案均已勾選，處理後，此群組的檔案將一個也不會保留。</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2
修改: %3
后缀: %4</source>
        <translation>路徑：%1
大小：%2
修改：%3
副檔名：%4</translation>
    </message>
    <message>
        <source>
尺寸: %1 × %2</source>
        <translation>
尺寸：%1 × %2</translation>
    </message>
    <message>
        <source>
相机: %1 %2</source>
        <translation>
相機：%1 %2</translation>
    </message>
    <message>
        <source>
拍摄: %1</source>
        <translation>
拍攝：%1</translation>
    </message>
    <message>
        <source>
艺术家: %1</source>
        <translation>
演出者：%1</translation>
    </message>
    <message>
        <source>
标题: %1</source>
        <translation>
標題：%1</translation>
    </message>
    <message>
        <source>常规模式</source>
        <translation>一般模式</translation>
    </message>
    <message>
        <source>图片模式</source>
        <translation>圖片模式</translation>
    </message>
    <message>
        <source>音频模式</source>
        <translation>音訊模式</translation>
    </message>
    <message>
        <source>视频模式</source>
        <translation>影片模式</translation>
    </message>
    <message>
        <source>完全相同匹配</source>
        <translation>完全相同</translation>
    </message>
    <message>
        <source>非常近似匹配</source>
        <translation>非常近似</translation>
    </message>
    <message>
        <source>近似匹配</source>
        <translation>近似</translation>
    </message>
    <message>
        <source>相似匹配</source>
        <translation>相似</translation>
    </message>
    <message>
        <source>宽松相似</source>
        <translation>大致相似</translation>
    </message>
    <message>
        <source>采样指纹（多点哈希）</source>
        <translation>取樣指紋（多點雜湊）</translation>
    </message>
    <message>
        <source>近似匹配（开头约 2 分钟采样）</source>
        <translation>近似（開頭約 2 分鐘取樣）</translation>
    </message>
    <message>
        <source>近似匹配（开头约 30 秒采样）</source>
        <translation>近似（開頭約 30 秒取樣）</translation>
    </message>
    <message>
        <source>全文件精确哈希</source>
        <translation>全檔精確雜湊</translation>
    </message>
    <message>
        <source>仅按标签匹配</source>
        <translation>僅依標籤比對</translation>
    </message>
    <message>
        <source>开头采样哈希</source>
        <translation>開頭取樣雜湊</translation>
    </message>
    <message>
        <source>全文件多点哈希（较慢）</source>
        <translation>全檔多點雜湊（較慢）</translation>
    </message>
    <message>
        <source>仅显示</source>
        <translation>僅顯示</translation>
    </message>
    <message>
        <source>必须匹配</source>
        <translation>必須相符</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>不限</source>
        <translation>不限</translation>
    </message>
    <message>
        <source>、</source>
        <translation>、</translation>
    </message>
    <message>
        <source>• 图像相似度：%1</source>
        <translation>• 圖片相似度：%1</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>翻转</source>
        <translation>翻轉</translation>
    </message>
    <message>
        <source>• 变体：%1</source>
        <translation>• 變體：%1</translation>
    </message>
    <message>
        <source>• 匹配：相同内容（字节级）</source>
        <translation>• 比對：相同內容（位元組層級）</translation>
    </message>
    <message>
        <source>• 匹配：相似内容（采样一致 ≥ %1%）</source>
        <translation>• 比對：相似內容（取樣相符 ≥ %1%）</translation>
    </message>
    <message>
        <source>• 匹配：忽略内容（名称/大小/日期规则）</source>
        <translation>• 比對：忽略內容（名稱/大小/日期規則）</translation>
    </message>
    <message>
        <source>• 音频比对：%1</source>
        <translation>• 音訊比對：%1</translation>
    </message>
    <message>
        <source>• 视频比对：%1</source>
        <translation>• 影片比對：%1</translation>
    </message>
    <message>
        <source>• 扫描位置：%1</source>
        <translation>• 掃描位置：%1</translation>
    </message>
    <message>
        <source>    … 另有 %1 个</source>
        <translation>    … 另有 %1 個</translation>
    </message>
    <message>
        <source>• 排除目录：%1</source>
        <translation>• 排除的資料夾：%1</translation>
    </message>
    <message>
        <source>• 大小限制：%1 ~ %2</source>
        <translation>• 大小限制：%1 ~ %2</translation>
    </message>
    <message>
        <source>• 包含扩展名：%1</source>
        <translation>• 包含的副檔名：%1</translation>
    </message>
    <message>
        <source>• 排除扩展名：%1</source>
        <translation>• 排除的副檔名：%1</translation>
    </message>
    <message>
        <source>隐藏文件</source>
        <translation>隱藏檔</translation>
    </message>
    <message>
        <source>系统目录</source>
        <translation>系統資料夾</translation>
    </message>
    <message>
        <source>• 跳过：%1</source>
        <translation>• 略過：%1</translation>
    </message>
    <message>
        <source>请确认以下扫描设置：</source>
        <translation>請確認以下掃描設定：</translation>
    </message>
    <message>
        <source>• 模式：%1</source>
        <translation>• 模式：%1</translation>
    </message>
    <message>
        <source>扫描在本地执行，文件不会上传到网络。</source>
        <translation>掃描在本機執行，檔案不會上傳到網路。</translation>
    </message>
    <message>
        <source>拍摄时间</source>
        <translation>拍攝時間</translation>
    </message>
    <message>
        <source>相机品牌</source>
        <translation>相機製造商</translation>
    </message>
    <message>
        <source>相机型号</source>
        <translation>相機型號</translation>
    </message>
    <message>
        <source>图片描述</source>
        <translation>圖片描述</translation>
    </message>
    <message>
        <source>用户注释</source>
        <translation>使用者註解</translation>
    </message>
    <message>
        <source>镜头型号</source>
        <translation>鏡頭型號</translation>
    </message>
    <message>
        <source>感光度</source>
        <translation>ISO 感光度</translation>
    </message>
    <message>
        <source>光圈值</source>
        <translation>光圈值</translation>
    </message>
    <message>
        <source>曝光时间</source>
        <translation>曝光時間</translation>
    </message>
    <message>
        <source>焦距</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>处理软件</source>
        <translation>處理軟體</translation>
    </message>
    <message>
        <source>艺术家</source>
        <translation>演出者</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>专辑</source>
        <translation>專輯</translation>
    </message>
    <message>
        <source>音轨号</source>
        <translation>曲目編號</translation>
    </message>
    <message>
        <source>年代</source>
        <translation>年份</translation>
    </message>
    <message>
        <source>流派</source>
        <translation>曲風</translation>
    </message>
    <message>
        <source>歌词作者</source>
        <translation>作詞者</translation>
    </message>
    <message>
        <source>比特率</source>
        <translation>位元率</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>取樣率</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>导演</source>
        <translation>導演</translation>
    </message>
    <message>
        <source>批量操作</source>
        <translation>批次操作</translation>
    </message>
    <message>
        <source>按规则自动勾选</source>
        <translation>依規則自動勾選</translation>
    </message>
    <message>
        <source>全选重复项</source>
        <translation>勾選所有重複項目</translation>
    </message>
    <message>
        <source>反选</source>
        <translation>反向勾選</translation>
    </message>
    <message>
        <source>清空结果</source>
        <translation>清除結果</translation>
    </message>
    <message>
        <source>移动到备份文件夹</source>
        <translation>移至備份資料夾</translation>
    </message>
    <message>
        <source>删除所选</source>
        <translation>刪除勾選項目</translation>
    </message>
    <message>
        <source>导出…</source>
        <translation>匯出…</translation>
    </message>
    <message>
        <source>文件预览</source>
        <translation>檔案預覽</translation>
    </message>
    <message>
        <source>选择文件以预览</source>
        <translation>選取檔案以預覽</translation>
    </message>
    <message>
        <source>文件夹: %1</source>
        <translation>資料夾：%1</translation>
    </message>
    <message>
        <source>无图像预览
%1</source>
        <translation>沒有圖片預覽
%1</translation>
    </message>
    <message>
        <source>在资源管理器中打开</source>
        <translation>在檔案總管中開啟</translation>
    </message>
    <message>
        <source>打开文件</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>開啟所在資料夾</translation>
    </message>
    <message>
        <source>复制路径</source>
        <translation>複製路徑</translation>
    </message>
    <message>
        <source>复制文件夹路径</source>
        <translation>複製資料夾路徑</translation>
    </message>
    <message>
        <source>尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。</source>
        <translation>尚未掃描。請選擇掃描模式並新增資料夾，然後按一下「開始掃描」。</translation>
    </message>
    <message>
        <source>视图：</source>
        <translation>檢視：</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>清單</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>縮圖</translation>
    </message>
    <message>
        <source>重复文件</source>
        <translation>重複檔案</translation>
    </message>
    <message>
        <source>重复文件夹</source>
        <translation>重複資料夾</translation>
    </message>
    <message>
        <source>其余 / 唯一文件</source>
        <translation>其餘 / 唯一檔案</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>就緒</translation>
    </message>
    <message>
        <source>全部展开</source>
        <translation>全部展開</translation>
    </message>
    <message>
        <source>全部折叠</source>
        <translation>全部摺疊</translation>
    </message>
    <message>
        <source>对比图片 (选 2 个)</source>
        <translation>比較圖片（選取 2 個）</translation>
    </message>
    <message>
        <source>全选本组重复项</source>
        <translation>勾選此群組的所有重複項目</translation>
    </message>
    <message>
        <source>音频文件匹配配置</source>
        <translation>音訊比對設定</translation>
    </message>
    <message>
        <source>音频指纹基于采样，并非 Chromaprint 级别。</source>
        <translation>音訊指紋以取樣為基礎，未達 Chromaprint 等級。</translation>
    </message>
    <message>
        <source> 毫秒</source>
        <translation> 毫秒</translation>
    </message>
    <message>
        <source>音频文件标签</source>
        <translation>音訊標籤</translation>
    </message>
    <message>
        <source>文件类型</source>
        <translation>檔案類型</translation>
    </message>
    <message>
        <source>扩展名</source>
        <translation>副檔名</translation>
    </message>
    <message>
        <source>使用当前模式的扩展名</source>
        <translation>使用目前模式的副檔名</translation>
    </message>
    <message>
        <source>勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。</source>
        <translation>勾選時依目前掃描模式的副檔名掃描；取消勾選則僅掃描「已包含」清單中的副檔名。</translation>
    </message>
    <message>
        <source>已排除</source>
        <translation>已排除</translation>
    </message>
    <message>
        <source>例如：jpg, png</source>
        <translation>例如：jpg, png</translation>
    </message>
    <message>
        <source>用逗号、分号或空格分隔；* 或 *.* 表示全部</source>
        <translation>以逗號、分號或空格分隔；* 或 *.* 表示全部</translation>
    </message>
    <message>
        <source>图片模式包含更多 RAW 格式</source>
        <translation>圖片模式包含更多 RAW 格式</translation>
    </message>
    <message>
        <source>图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；
raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。</source>
        <translation>圖片模式下也掃描 arw、dng、rw2、orf、srw 等相機 RAW 檔；
raw、cr2、nef 一律會掃描。僅在「已包含」清單為空時有效。</translation>
    </message>
    <message>
        <source>文件大小</source>
        <translation>檔案大小</translation>
    </message>
    <message>
        <source>不限大小</source>
        <translation>不限大小</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>任意日期</source>
        <translation>任何日期</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>建立日期</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>从这一天开始</source>
        <translation>從這一天開始</translation>
    </message>
    <message>
        <source>到这一天为止（含当天）</source>
        <translation>到這一天為止（含當天）</translation>
    </message>
    <message>
        <source>更多判断重复的选项</source>
        <translation>更多重複判斷條件</translation>
    </message>
    <message>
        <source>内容匹配</source>
        <translation>內容比對</translation>
    </message>
    <message>
        <source>相同内容</source>
        <translation>相同內容</translation>
    </message>
    <message>
        <source>相似内容</source>
        <translation>相似內容</translation>
    </message>
    <message>
        <source>忽略内容</source>
        <translation>忽略內容</translation>
    </message>
    <message>
        <source>以下模式互斥：
• 相同内容 = 逐字节一致（默认）
• 相似内容 = 字节近似匹配
• 忽略内容 = 仅按元数据规则</source>
        <translation>以下模式只能擇一：
• 相同內容＝逐位元組一致（預設）
• 相似內容＝位元組近似比對
• 忽略內容＝僅依中繼資料規則</translation>
    </message>
    <message>
        <source>采样一致的最低比例</source>
        <translation>取樣相符的最低比例</translation>
    </message>
    <message>
        <source>不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。</source>
        <translation>不讀取檔案內容，僅以下方的「更多重複判斷條件」分組（名稱/大小/日期等）。</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>檔名</translation>
    </message>
    <message>
        <source>相同文件名</source>
        <translation>相同檔名</translation>
    </message>
    <message>
        <source>相同文件拓展名</source>
        <translation>相同副檔名</translation>
    </message>
    <message>
        <source>相似文件名</source>
        <translation>相似檔名</translation>
    </message>
    <message>
        <source>忽略文件名中「副本」字样</source>
        <translation>忽略檔名結尾的 Copy、副本、(2) 等字樣</translation>
    </message>
    <message>
        <source>包括其他语言</source>
        <translation>包括其他語言</translation>
    </message>
    <message>
        <source>也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”</source>
        <translation>也忽略其他語言的系統和檔案管理員為副本加上的字樣，例如「- Kopie」、「(otra copia)」</translation>
    </message>
    <message>
        <source>相同文件大小</source>
        <translation>相同檔案大小</translation>
    </message>
    <message>
        <source>容差</source>
        <translation>容許誤差</translation>
    </message>
    <message>
        <source>容差单位</source>
        <translation>容許誤差單位</translation>
    </message>
    <message>
        <source>相同创建日期</source>
        <translation>相同建立日期</translation>
    </message>
    <message>
        <source>仅匹配日期</source>
        <translation>僅比對日期</translation>
    </message>
    <message>
        <source>相同修改日期</source>
        <translation>相同修改日期</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>磁碟機</translation>
    </message>
    <message>
        <source>相同磁盘</source>
        <translation>相同磁碟機</translation>
    </message>
    <message>
        <source>文件夹与路径</source>
        <translation>資料夾與路徑</translation>
    </message>
    <message>
        <source>相同的文件夹名称</source>
        <translation>相同資料夾名稱</translation>
    </message>
    <message>
        <source>匹配完整路径</source>
        <translation>比對完整路徑</translation>
    </message>
    <message>
        <source>匹配文件夹路径深度</source>
        <translation>比對資料夾路徑深度</translation>
    </message>
    <message>
        <source>匹配扫描位置以下路径</source>
        <translation>比對掃描位置以下的路徑</translation>
    </message>
    <message>
        <source>忽略在同一文件夹的重复组别</source>
        <translation>忽略位於同一資料夾的重複群組</translation>
    </message>
    <message>
        <source>文本匹配选项</source>
        <translation>文字比對選項</translation>
    </message>
    <message>
        <source>大小写敏感</source>
        <translation>區分大小寫</translation>
    </message>
    <message>
        <source>相似文本 - 容差</source>
        <translation>相似文字 - 容許誤差</translation>
    </message>
    <message>
        <source>相似文件名之间最多相差的字符数</source>
        <translation>相似檔名之間最多可相差的字元數</translation>
    </message>
    <message>
        <source>图片匹配配置</source>
        <translation>圖片比對設定</translation>
    </message>
    <message>
        <source>匹配RAW图像时使用内嵌JPG图像（较快）</source>
        <translation>比對 RAW 圖片時使用內嵌的 JPEG（較快）</translation>
    </message>
    <message>
        <source>性能</source>
        <translation>效能</translation>
    </message>
    <message>
        <source>使用图片特征值缓存</source>
        <translation>使用圖片特徵快取</translation>
    </message>
    <message>
        <source>图片标签</source>
        <translation>圖片標籤</translation>
    </message>
    <message>
        <source>匹配精度</source>
        <translation>比對精確度</translation>
    </message>
    <message>
        <source>图像相似度</source>
        <translation>圖片相似度</translation>
    </message>
    <message>
        <source>尺寸约束</source>
        <translation>尺寸限制</translation>
    </message>
    <message>
        <source>相同尺寸</source>
        <translation>相同尺寸</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>長寬比</translation>
    </message>
    <message>
        <source>相同长宽比</source>
        <translation>相同長寬比</translation>
    </message>
    <message>
        <source>变换匹配</source>
        <translation>旋轉與翻轉比對</translation>
    </message>
    <message>
        <source>查找旋转过的</source>
        <translation>尋找旋轉過的圖片</translation>
    </message>
    <message>
        <source>查找翻转过的</source>
        <translation>尋找翻轉過的圖片</translation>
    </message>
    <message>
        <source>同时要求颜色分布（直方图）一致</source>
        <translation>同時要求色彩分布（直方圖）一致</translation>
    </message>
    <message>
        <source>时间分组</source>
        <translation>時間分組</translation>
    </message>
    <message>
        <source>按摄制时间分组</source>
        <translation>依拍攝時間分組</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>摄制时间最多相差</source>
        <translation>拍攝時間最多相差</translation>
    </message>
    <message>
        <source>GPS分组</source>
        <translation>GPS 分組</translation>
    </message>
    <message>
        <source>按GPS地理位置分组</source>
        <translation>依 GPS 位置分組</translation>
    </message>
    <message>
        <source>拍摄地点最多相距</source>
        <translation>拍攝地點最遠相距</translation>
    </message>
    <message>
        <source>匹配方式</source>
        <translation>比對方式</translation>
    </message>
    <message>
        <source>仅按标签匹配时，请至少将一个标签设为「必须匹配」</source>
        <translation>僅依標籤比對時，請將至少一個標籤設為「必須相符」</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>時間長度</translation>
    </message>
    <message>
        <source>匹配时长</source>
        <translation>比對時間長度</translation>
    </message>
    <message>
        <source>忽略指向同一文件的硬链接</source>
        <translation>忽略指向同一檔案的硬式連結</translation>
    </message>
    <message>
        <source>硬链接只是同一份数据的另一个名称，移除它不会释放空间。</source>
        <translation>硬式連結只是同一份資料的另一個名稱，移除它不會釋放空間。</translation>
    </message>
    <message>
        <source>标签</source>
        <translation>標籤</translation>
    </message>
    <message>
        <source>匹配</source>
        <translation>比對</translation>
    </message>
    <message>
        <source>勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组</source>
        <translation>勾選＝啟用標籤比對；取消＝忽略此群組的標籤，僅依其他條件分組</translation>
    </message>
    <message>
        <source>+ 添加</source>
        <translation>+ 新增</translation>
    </message>
    <message>
        <source>视频匹配配置</source>
        <translation>影片比對設定</translation>
    </message>
    <message>
        <source>字节采样近似比对，并非逐帧视频指纹。</source>
        <translation>以位元組取樣近似比對，並非逐格影片指紋。</translation>
    </message>
    <message>
        <source>时:分:秒.毫秒</source>
        <translation>時:分:秒.毫秒</translation>
    </message>
    <message>
        <source>视频文件标签</source>
        <translation>影片標籤</translation>
    </message>
    <message>
        <source>已复制 %1 个文件</source>
        <translation>已複製 %1 個檔案</translation>
    </message>
    <message>
        <source>无法写入文件。</source>
        <translation>無法寫入檔案。</translation>
    </message>
    <message>
        <source>无法写入脚本。</source>
        <translation>無法寫入批次檔。</translation>
    </message>
    <message>
        <source>未知导出格式。</source>
        <translation>未知的匯出格式。</translation>
    </message>
    <message>
        <source>批处理脚本无法准确指明该文件，已写为注释: %1</source>
        <translation>批次檔無法準確指明此檔案，已改寫為註解：%1</translation>
    </message>
    <message>
        <source>Mirrix 重复文件扫描报告</source>
        <translation>Mirrix 重複檔案掃描報告</translation>
    </message>
    <message>
        <source>生成时间: %1</source>
        <translation>產生時間：%1</translation>
    </message>
    <message>
        <source>扫描模式: %1</source>
        <translation>掃描模式：%1</translation>
    </message>
    <message>
        <source>范围: 仅已勾选文件</source>
        <translation>範圍：僅勾選的檔案</translation>
    </message>
    <message>
        <source>说明: 路径已脱敏（用户名已隐藏）</source>
        <translation>說明：路徑已去識別化（使用者名稱已隱藏）</translation>
    </message>
    <message>
        <source>[组 %1]</source>
        <translation>[群組 %1]</translation>
    </message>
    <message>
        <source> 键: %1</source>
        <translation> 索引鍵：%1</translation>
    </message>
    <message>
        <source>  (%1 个文件)</source>
        <translation>  （%1 個檔案）</translation>
    </message>
    <message>
        <source>
部分失败：
</source>
        <translation>
部分失敗：
</translation>
    </message>
    <message>
        <source>已按规则自动勾选待处理文件</source>
        <translation>已依規則自動勾選檔案</translation>
    </message>
    <message>
        <source>已勾选各组重复项（默认保留每组第一个）</source>
        <translation>已勾選各群組的重複項目（預設保留每組第一個）</translation>
    </message>
    <message>
        <source>已反选</source>
        <translation>已反向勾選</translation>
    </message>
    <message>
        <source>正在更新勾选…</source>
        <translation>正在更新勾選…</translation>
    </message>
    <message>
        <source>已停止，其余文件未处理</source>
        <translation>已停止，尚未處理的檔案維持不變</translation>
    </message>
    <message>
        <source>请先勾选要处理的文件。</source>
        <translation>請先勾選要處理的檔案。</translation>
    </message>
    <message>
        <source>将把 %1 个文件移动到备份目录：
%2
是否继续？</source>
        <translation>將 %1 個檔案移至備份資料夾：
%2
要繼續嗎？</translation>
    </message>
    <message>
        <source>确认备份移动</source>
        <translation>確認移至備份</translation>
    </message>
    <message>
        <source>正在备份移动文件… (%1/%2)</source>
        <translation>正在將檔案移至備份… (%1/%2)</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>已备份移动 %1 个文件。%2
请重新扫描以刷新结果。</source>
        <translation>已將 %1 個檔案移至備份。%2
請重新掃描以更新結果。</translation>
    </message>
    <message>
        <source>请先勾选要删除的文件。</source>
        <translation>請先勾選要刪除的檔案。</translation>
    </message>
    <message>
        <source>正在备份并移除文件… (%1/%2)</source>
        <translation>正在備份並移除檔案… (%1/%2)</translation>
    </message>
    <message>
        <source>备份警告</source>
        <translation>備份警告</translation>
    </message>
    <message>
        <source>部分文件备份失败：
%1</source>
        <translation>部分檔案備份失敗：
%1</translation>
    </message>
    <message>
        <source>已备份并移除 %1 个文件。请重新扫描以刷新结果。</source>
        <translation>已備份並移除 %1 個檔案。請重新掃描以更新結果。</translation>
    </message>
    <message>
        <source>永久删除确认</source>
        <translation>確認永久刪除</translation>
    </message>
    <message>
        <source>即将永久删除 %1 个文件，此操作不可撤销。是否继续？</source>
        <translation>即將永久刪除 %1 個檔案，此操作無法復原。要繼續嗎？</translation>
    </message>
    <message>
        <source>正在移除文件… (%1/%2)</source>
        <translation>正在移除檔案… (%1/%2)</translation>
    </message>
    <message>
        <source>请重新扫描以刷新结果。</source>
        <translation>請重新掃描以更新結果。</translation>
    </message>
    <message>
        <source>已处理 %1 个文件。%2</source>
        <translation>已處理 %1 個檔案。%2</translation>
    </message>
    <message>
        <source>正在读取备份索引…</source>
        <translation>正在讀取備份索引…</translation>
    </message>
    <message>
        <source>备份索引为空。</source>
        <translation>備份索引是空的。</translation>
    </message>
    <message>
        <source>确认恢复</source>
        <translation>確認還原</translation>
    </message>
    <message>
        <source>将恢复：
%1</source>
        <translation>將還原：
%1</translation>
    </message>
    <message>
        <source>正在恢复文件… (%1/%2)</source>
        <translation>正在還原檔案… (%1/%2)</translation>
    </message>
    <message>
        <source>已恢复 %1 个文件。</source>
        <translation>已還原 %1 個檔案。</translation>
    </message>
    <message>
        <source>已再次移除 %1 个文件。</source>
        <translation>已再次移除 %1 個檔案。</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>文件已恢复。</source>
        <translation>檔案已還原。</translation>
    </message>
    <message>
        <source>快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。</source>
        <translation>快速、安全的重複檔案尋找與清理工具，支援一般內容、圖片相似、音訊指紋與影片縮圖模式。</translation>
    </message>
    <message>
        <source>便携模式（数据位于程序旁的 \Data）</source>
        <translation>可攜模式（資料位於程式旁的 \Data）</translation>
    </message>
    <message>
        <source>标准模式（数据位于用户 AppData）</source>
        <translation>標準模式（資料位於使用者的 AppData）</translation>
    </message>
    <message>
        <source>版本 %1 · %2 · %3</source>
        <translation>版本 %1 · %2 · %3</translation>
    </message>
    <message>
        <source>数据文件夹：%1</source>
        <translation>資料存放位置：%1</translation>
    </message>
    <message>
        <source>开源致谢</source>
        <translation>開放原始碼致謝</translation>
    </message>
    <message>
        <source>库</source>
        <translation>程式庫</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>许可</source>
        <translation>授權</translation>
    </message>
    <message>
        <source>CSV 清单 (.csv)</source>
        <translation>CSV 清單 (.csv)</translation>
    </message>
    <message>
        <source>文本清单 (.txt)</source>
        <translation>文字清單 (.txt)</translation>
    </message>
    <message>
        <source>复制文件到文件夹</source>
        <translation>將檔案複製到資料夾</translation>
    </message>
    <message>
        <source>生成批处理脚本 (.bat)</source>
        <translation>產生批次檔 (.bat)</translation>
    </message>
    <message>
        <source>文本 (*.txt)</source>
        <translation>文字檔 (*.txt)</translation>
    </message>
    <message>
        <source>批处理 (*.bat)</source>
        <translation>批次檔 (*.bat)</translation>
    </message>
    <message>
        <source>选择目标文件夹</source>
        <translation>選擇目標資料夾</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>导出扫描结果</source>
        <translation>匯出掃描結果</translation>
    </message>
    <message>
        <source>导出格式</source>
        <translation>匯出格式</translation>
    </message>
    <message>
        <source>运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”</source>
        <translation>執行批次檔會刪除其中列出的每個檔案，包括要保留的檔案；如只要刪除勾選的檔案，請勾選「僅匯出勾選的檔案」</translation>
    </message>
    <message>
        <source>输出路径：</source>
        <translation>輸出路徑：</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>瀏覽…</translation>
    </message>
    <message>
        <source>仅导出已勾选的文件</source>
        <translation>僅匯出勾選的檔案</translation>
    </message>
    <message>
        <source>包含分组键与修改时间</source>
        <translation>包含群組索引鍵與修改時間</translation>
    </message>
    <message>
        <source>路径脱敏（隐藏用户名，便于分享）</source>
        <translation>路徑去識別化（隱藏使用者名稱，便於分享）</translation>
    </message>
    <message>
        <source>脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件</source>
        <translation>去識別化的批次檔僅供閱讀，不會刪除使用者名稱已隱藏的檔案</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>正在停止…</translation>
    </message>
    <message>
        <source>正在处理</source>
        <translation>正在處理</translation>
    </message>
    <message>
        <source>完成当前文件后停止</source>
        <translation>完成目前的檔案後停止</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>移入回收站（可恢复）</source>
        <translation>移至資源回收筒（可還原）</translation>
    </message>
    <message>
        <source>永久删除</source>
        <translation>永久刪除</translation>
    </message>
    <message>
        <source>移动到指定文件夹</source>
        <translation>移至指定資料夾</translation>
    </message>
    <message>
        <source>删除后创建符号链接</source>
        <translation>刪除後建立符號連結</translation>
    </message>
    <message>
        <source>删除后创建硬链接</source>
        <translation>刪除後建立硬式連結</translation>
    </message>
    <message>
        <source>文件移除</source>
        <translation>移除檔案</translation>
    </message>
    <message>
        <source>即将处理 %1 个文件。请选择移除方式：</source>
        <translation>即將處理 %1 個檔案。請選擇移除方式：</translation>
    </message>
    <message>
        <source>移除方式</source>
        <translation>移除方式</translation>
    </message>
    <message>
        <source>目标文件夹：</source>
        <translation>目標資料夾：</translation>
    </message>
    <message>
        <source>链接目标：</source>
        <translation>連結目標：</translation>
    </message>
    <message>
        <source>保留的文件路径（用于创建链接）</source>
        <translation>要保留的檔案路徑（用於建立連結）</translation>
    </message>
    <message>
        <source>先备份再创建链接时可留空：每个链接指向本组中未勾选的文件</source>
        <translation>先備份再建立連結時可留空：每個連結會指向同一群組中未勾選的檔案</translation>
    </message>
    <message>
        <source>移除前先备份</source>
        <translation>移除前先備份</translation>
    </message>
    <message>
        <source>哈希值工具 - Mirrix</source>
        <translation>雜湊工具 - Mirrix</translation>
    </message>
    <message>
        <source>+ 选择文件</source>
        <translation>+ 選擇檔案</translation>
    </message>
    <message>
        <source>+ 选择文件夹</source>
        <translation>+ 選擇資料夾</translation>
    </message>
    <message>
        <source>重新计算</source>
        <translation>重新計算</translation>
    </message>
    <message>
        <source>算法</source>
        <translation>演算法</translation>
    </message>
    <message>
        <source>添加文件夹时包含其所有下级文件夹中的文件</source>
        <translation>新增資料夾時包含其所有子資料夾中的檔案</translation>
    </message>
    <message>
        <source>哈希值</source>
        <translation>雜湊值</translation>
    </message>
    <message>
        <source>可将文件或文件夹拖放到此窗口</source>
        <translation>可將檔案或資料夾拖放到此視窗</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>選擇檔案</translation>
    </message>
    <message>
        <source>选择文件夹</source>
        <translation>選擇資料夾</translation>
    </message>
    <message>
        <source>正在查找文件…</source>
        <translation>正在尋找檔案…</translation>
    </message>
    <message>
        <source>正在计算哈希…</source>
        <translation>正在計算雜湊…</translation>
    </message>
    <message>
        <source>复制：哈希值</source>
        <translation>複製雜湊值</translation>
    </message>
    <message>
        <source>复制：文件名</source>
        <translation>複製檔名</translation>
    </message>
    <message>
        <source>图片对比</source>
        <translation>圖片比較</translation>
    </message>
    <message>
        <source>文件 A</source>
        <translation>檔案 A</translation>
    </message>
    <message>
        <source>文件 B</source>
        <translation>檔案 B</translation>
    </message>
    <message>
        <source>正在读取…</source>
        <translation>正在讀取…</translation>
    </message>
    <message>
        <source>日志为空。</source>
        <translation>記錄是空的。</translation>
    </message>
    <message>
        <source>显示 %1 条，共 %2 条</source>
        <translation>顯示 %1 筆，共 %2 筆</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>操作記錄</translation>
    </message>
    <message>
        <source>筛选日志</source>
        <translation>篩選記錄</translation>
    </message>
    <message>
        <source>复制所选</source>
        <translation>複製選取項目</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>重新整理</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>将删除目录下的全部图片哈希/直方图缓存：
%1

下次图片扫描会重新计算，可能稍慢。是否继续？</source>
        <translation>將刪除以下資料夾中的所有圖片雜湊/直方圖快取：
%1

下次圖片掃描會重新計算，可能較慢。要繼續嗎？</translation>
    </message>
    <message>
        <source>清空图片特征缓存</source>
        <translation>清除圖片特徵快取</translation>
    </message>
    <message>
        <source>图片特征缓存已清空。</source>
        <translation>圖片特徵快取已清除。</translation>
    </message>
    <message>
        <source>部分缓存文件无法删除。</source>
        <translation>部分快取檔案無法刪除。</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>⚙  常规</source>
        <translation>⚙  一般</translation>
    </message>
    <message>
        <source>🎨  主题</source>
        <translation>🎨  佈景主題</translation>
    </message>
    <message>
        <source>ℹ  关于程序</source>
        <translation>ℹ  關於</translation>
    </message>
    <message>
        <source>常规设置</source>
        <translation>一般設定</translation>
    </message>
    <message>
        <source>关闭主窗口时</source>
        <translation>關閉主視窗時</translation>
    </message>
    <message>
        <source>最小化到系统托盘（推荐）</source>
        <translation>縮到系統匣（建議）</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>結束程式</translation>
    </message>
    <message>
        <source>扫描</source>
        <translation>掃描</translation>
    </message>
    <message>
        <source>扫描完成后播放提示音</source>
        <translation>掃描完成時播放提示音</translation>
    </message>
    <message>
        <source>扫描开始前显示确认对话框</source>
        <translation>開始掃描前顯示確認對話方塊</translation>
    </message>
    <message>
        <source>关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。</source>
        <translation>停用後，按一下「開始掃描」會立即執行；也可以在確認對話方塊中勾選「不再顯示此確認」。</translation>
    </message>
    <message>
        <source>内容指纹算法</source>
        <translation>內容指紋演算法</translation>
    </message>
    <message>
        <source>MD5（默认，沿用现有指纹缓存）</source>
        <translation>MD5（預設，沿用現有的指紋快取）</translation>
    </message>
    <message>
        <source>BLAKE3（更快、更强；切换后重建缓存）</source>
        <translation>BLAKE3（更快、更強；切換後會重建快取）</translation>
    </message>
    <message>
        <source>仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。</source>
        <translation>僅影響「相同內容」精確比對的快速雜湊與完整雜湊；相似內容取樣仍使用 MD5。</translation>
    </message>
    <message>
        <source>缓存与数据</source>
        <translation>快取與資料</translation>
    </message>
    <message>
        <source>图片特征缓存可加快重复图片的扫描。位置：</source>
        <translation>圖片特徵快取可加快重複圖片的掃描。位置：</translation>
    </message>
    <message>
        <source>清除已缓存的感知哈希与直方图，下次扫描会重新计算</source>
        <translation>清除已快取的感知雜湊與直方圖，下次掃描會重新計算</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>佈景主題</translation>
    </message>
    <message>
        <source>浅色（Fusion）</source>
        <translation>淺色（Fusion）</translation>
    </message>
    <message>
        <source>深色（Fusion）</source>
        <translation>深色（Fusion）</translation>
    </message>
    <message>
        <source>使用 Qt Fusion 样式，立即生效并自动保存。</source>
        <translation>使用 Qt Fusion 樣式，立即生效並自動儲存。</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>還原備份</translation>
    </message>
    <message>
        <source>选择要恢复的文件：</source>
        <translation>選擇要還原的檔案：</translation>
    </message>
    <message>
        <source>按路径筛选</source>
        <translation>依路徑篩選</translation>
    </message>
    <message>
        <source>
无法放回的文件（%1 个）：
</source>
        <translation>
無法放回原處的檔案（%1 個）：
</translation>
    </message>
    <message>
        <source>
无法再次移除的文件（%1 个）：
</source>
        <translation>
無法再次移除的檔案（%1 個）：
</translation>
    </message>
    <message>
        <source>%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。</source>
        <translation>%1 個檔案（%2）不會被移除：只在路徑已空出時建立連結。要以連結取代檔案，請先備份。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站，无法找回。</source>
        <translation>%1 個檔案（%2）將永久刪除，不進資源回收筒，無法找回。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。</source>
        <translation>%1 個檔案（%2）將永久刪除，不進資源回收筒；可以用保留的檔案重新產生。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移入回收站，清空回收站后才释放空间。</source>
        <translation>%1 個檔案（%2）將移至資源回收筒，清空後才釋放空間。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不会永久删除。</source>
        <translation>%1 個檔案（%2）將移至備份資料夾，不會永久刪除。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用回收站。</source>
        <translation>%1 個檔案（%2）將移至備份資料夾，不使用資源回收筒。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。</source>
        <translation>%1 個檔案（%2）將移至備份資料夾，不使用目標資料夾。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。</source>
        <translation>%1 個檔案（%2）將移至備份資料夾，原位置由連結取代。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到目标文件夹。</source>
        <translation>%1 個檔案（%2）將移至目標資料夾。</translation>
    </message>
    <message>
        <source>不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容</source>
        <translation>不勾選時，回收、移動和備份前只比對抽樣內容；永久刪除和建立連結前一律比對全部內容</translation>
    </message>
    <message>
        <source>仍占用</source>
        <translation>仍占用</translation>
    </message>
    <message>
        <source>保留记录（天）：</source>
        <translation>保留記錄（天）：</translation>
    </message>
    <message>
        <source>全部处理</source>
        <translation>全部處理</translation>
    </message>
    <message>
        <source>内容与要保留的文件不同，已保留: %1</source>
        <translation>內容與要保留的檔案不同，已保留：%1</translation>
    </message>
    <message>
        <source>决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除</source>
        <translation>決定開啟移除對話方塊時是否已勾選「移除前先備份」；備份的檔案移至備份資料夾，不會刪除</translation>
    </message>
    <message>
        <source>删除更早的记录</source>
        <translation>刪除更早的記錄</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>刪除記錄</translation>
    </message>
    <message>
        <source>回收站中保留 %1</source>
        <translation>資源回收筒中保留 %1</translation>
    </message>
    <message>
        <source>在历史中显示</source>
        <translation>在歷程中顯示</translation>
    </message>
    <message>
        <source>备份中保留：%1</source>
        <translation>備份中保留：%1</translation>
    </message>
    <message>
        <source>备份文件夹中保留 %1</source>
        <translation>備份資料夾中保留 %1</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>失敗：%1</translation>
    </message>
    <message>
        <source>将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？</source>
        <translation>將刪除 %1 筆清理記錄。檔案不受影響，但之後無法在此復原這些清理。是否繼續？</translation>
    </message>
    <message>
        <source>将把 %1 个文件放回原处。是否继续？</source>
        <translation>將把 %1 個檔案放回原處。是否繼續？</translation>
    </message>
    <message>
        <source>将再次移除 %1 个文件（%2）。是否继续？</source>
        <translation>將再次移除 %1 個檔案（%2）。是否繼續？</translation>
    </message>
    <message>
        <source>将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？</source>
        <translation>將永久刪除此次清理留在備份資料夾中的檔案（%1），之後無法從備份還原。是否繼續？</translation>
    </message>
    <message>
        <source>已中断</source>
        <translation>已中斷</translation>
    </message>
    <message>
        <source>已停止，未处理: %1</source>
        <translation>已停止，未處理：%1</translation>
    </message>
    <message>
        <source>已删除 %1 个备份文件。</source>
        <translation>已刪除 %1 個備份檔案。</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>已撤销</source>
        <translation>已復原</translation>
    </message>
    <message>
        <source>已放回原处</source>
        <translation>已放回原處</translation>
    </message>
    <message>
        <source>已移除</source>
        <translation>已移除</translation>
    </message>
    <message>
        <source>已释放</source>
        <translation>已釋放</translation>
    </message>
    <message>
        <source>已释放 %1</source>
        <translation>已釋放 %1</translation>
    </message>
    <message>
        <source>所有者或权限与链接目标不同，未处理: %1</source>
        <translation>擁有者或權限與連結目標不同，未處理：%1</translation>
    </message>
    <message>
        <source>撤销了 %1</source>
        <translation>復原了 %1</translation>
    </message>
    <message>
        <source>撤销所选文件</source>
        <translation>復原選取的檔案</translation>
    </message>
    <message>
        <source>撤销此次清理</source>
        <translation>復原此次清理</translation>
    </message>
    <message>
        <source>撤销清理</source>
        <translation>復原清理</translation>
    </message>
    <message>
        <source>重新清理</source>
        <translation>重新清理</translation>
    </message>
    <message>
        <source>文件仍在回收站中，可从那里恢复: %1</source>
        <translation>檔案仍在資源回收筒中，可從那裡還原：%1</translation>
    </message>
    <message>
        <source>文件已存在，是否替换？
%1</source>
        <translation>檔案已存在，是否取代？
%1</translation>
    </message>
    <message>
        <source>文件数 / 保留的副本</source>
        <translation>檔案數 / 要保留的檔案</translation>
    </message>
    <message>
        <source>文件正被其他程序使用，未处理: %1</source>
        <translation>檔案正由其他程式使用，未處理：%1</translation>
    </message>
    <message>
        <source>方式 / 现在位置</source>
        <translation>方式 / 目前位置</translation>
    </message>
    <message>
        <source>无法写入操作日志: %1</source>
        <translation>無法寫入操作記錄：%1</translation>
    </message>
    <message>
        <source>无法写入操作记录，未处理任何文件: %1</source>
        <translation>無法寫入清理記錄，未處理任何檔案：%1</translation>
    </message>
    <message>
        <source>无法更新备份索引: %1</source>
        <translation>無法更新備份索引：%1</translation>
    </message>
    <message>
        <source>无法确保要保留的文件已写入磁盘，未处理: %1</source>
        <translation>無法確認要保留的檔案已寫入磁碟，未處理：%1</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>無法讀取</translation>
    </message>
    <message>
        <source>无结果记录</source>
        <translation>無結果記錄</translation>
    </message>
    <message>
        <source>时间 / 文件</source>
        <translation>時間 / 檔案</translation>
    </message>
    <message>
        <source>有 %1 条记录无法删除。</source>
        <translation>有 %1 筆記錄無法刪除。</translation>
    </message>
    <message>
        <source>有 %1 组将不会留下任何副本。</source>
        <translation>有 %1 個群組將不會留下任何檔案。</translation>
    </message>
    <message>
        <source>正在删除备份… (%1/%2)</source>
        <translation>正在刪除備份… (%1/%2)</translation>
    </message>
    <message>
        <source>正在检查文件… (%1/%2)</source>
        <translation>正在檢查檔案… (%1/%2)</translation>
    </message>
    <message>
        <source>每次移除前比较全部内容</source>
        <translation>每次移除前比對全部內容</translation>
    </message>
    <message>
        <source>每组取消勾选一个</source>
        <translation>每個群組取消勾選一個</translation>
    </message>
    <message>
        <source>永久</source>
        <translation>永久</translation>
    </message>
    <message>
        <source>没有保留的副本</source>
        <translation>沒有保留的檔案</translation>
    </message>
    <message>
        <source>没有可以放回的文件。</source>
        <translation>沒有可以放回的檔案。</translation>
    </message>
    <message>
        <source>没有可以再次移除的文件。</source>
        <translation>沒有可以再次移除的檔案。</translation>
    </message>
    <message>
        <source>没有更早的记录。</source>
        <translation>沒有更早的記錄。</translation>
    </message>
    <message>
        <source>没有清理记录。</source>
        <translation>沒有清理記錄。</translation>
    </message>
    <message>
        <source>清理历史</source>
        <translation>清理歷程</translation>
    </message>
    <message>
        <source>清理历史(&amp;C)…</source>
        <translation>清理歷程(&amp;C)…</translation>
    </message>
    <message>
        <source>目标文件夹包含该文件，未处理: %1</source>
        <translation>目標資料夾包含該檔案，未處理：%1</translation>
    </message>
    <message>
        <source>硬链接</source>
        <translation>硬式連結</translation>
    </message>
    <message>
        <source>确认替换</source>
        <translation>確認取代</translation>
    </message>
    <message>
        <source>移入回收站</source>
        <translation>移至資源回收筒</translation>
    </message>
    <message>
        <source>删除空文件夹</source>
        <translation>刪除空資料夾</translation>
    </message>
    <message>
        <source>移动到文件夹</source>
        <translation>移至資料夾</translation>
    </message>
    <message>
        <source>符号链接</source>
        <translation>符號連結</translation>
    </message>
    <message>
        <source>要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1</source>
        <translation>要保留的檔案已不在原處，或經由另一路徑就是該檔案本身，未處理：%1</translation>
    </message>
    <message>
        <source>部分已撤销</source>
        <translation>部分已復原</translation>
    </message>
    <message>
        <source>部分组不是按内容匹配的，处理前不会比较这些文件的内容。</source>
        <translation>部分群組不是按內容比對的，處理前不會比對這些檔案的內容。</translation>
    </message>
    <message>
        <source>释放 %1</source>
        <translation>釋放 %1</translation>
    </message>
    <message>
        <source>释放备份</source>
        <translation>釋放備份</translation>
    </message>
    <message>
        <source>恢复所选</source>
        <translation>還原選取項目</translation>
    </message>
    <message>
        <source>正在复制文件… (%1/%2)</source>
        <translation>正在複製檔案… (%1/%2)</translation>
    </message>
    <message>
        <source>正在导出… (%1/%2)</source>
        <translation>正在匯出… (%1/%2)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>导出失败。</source>
        <translation>匯出失敗。</translation>
    </message>
    <message>
        <source>导出警告</source>
        <translation>匯出警告</translation>
    </message>
    <message>
        <source>部分文件未能导出：
%1</source>
        <translation>部分檔案未能匯出：
%1</translation>
    </message>
    <message>
        <source>已复制文件到：%1
%2</source>
        <translation>已將檔案複製到：%1
%2</translation>
    </message>
    <message>
        <source>已导出：%1</source>
        <translation>已匯出：%1</translation>
    </message>
    <message>
        <source>没有可导出的结果。</source>
        <translation>沒有可匯出的結果。</translation>
    </message>
    <message>
        <source>请指定输出路径。</source>
        <translation>請指定輸出路徑。</translation>
    </message>
    <message>
        <source>…… 另有 %1 行，见详细信息</source>
        <translation>…… 另有 %1 行，請見詳細資料</translation>
    </message>
    <message>
        <source>…… 另有 %1 行未显示</source>
        <translation>…… 另有 %1 行未顯示</translation>
    </message>
    <message>
        <source>链接目标属于另一组，未处理: %1</source>
        <translation>連結目標屬於另一個群組，未處理：%1</translation>
    </message>
    <message>
        <source>没有可链接的保留文件，未处理: %1</source>
        <translation>沒有可連結的保留檔案，未處理：%1</translation>
    </message>
    <message>
        <source>共 %1 个文件</source>
        <translation>共 %1 個檔案</translation>
    </message>
    <message>
        <source>共 %1 个文件 @ %2.%3 秒</source>
        <translation>共 %1 個檔案 @ %2.%3 秒</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2 字节
修改: %3</source>
        <translation>路徑：%1
大小：%2 位元組
修改：%3</translation>
    </message>
    <message>
        <source>
GPS: %1, %2</source>
        <translation>
GPS：%1, %2</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>詳細資料</translation>
    </message>
    <message>
        <source>程序启动</source>
        <translation>程式啟動</translation>
    </message>
    <message>
        <source>扫描开始</source>
        <translation>掃描開始</translation>
    </message>
    <message>
        <source>备份已恢复</source>
        <translation>備份已還原</translation>
    </message>
    <message>
        <source>要移除的空文件夹</source>
        <translation>要移除的空資料夾</translation>
    </message>
    <message>
        <source>空文件夹已移除</source>
        <translation>空資料夾已移除</translation>
    </message>
    <message>
        <source>程序退出</source>
        <translation>程式結束</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>掃描完成</translation>
    </message>
    <message>
        <source>按规则勾选</source>
        <translation>依規則勾選</translation>
    </message>
    <message>
        <source>移动到备份</source>
        <translation>移至備份</translation>
    </message>
    <message>
        <source>备份并移除</source>
        <translation>備份並移除</translation>
    </message>
    <message>
        <source>移除文件</source>
        <translation>移除檔案</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>匯出</translation>
    </message>
    <message>
        <source>导出副本</source>
        <translation>匯出副本</translation>
    </message>
    <message>
        <source>恢复备份…</source>
        <translation>還原備份…</translation>
    </message>
    <message>
        <source>结果已清空。切换Tab调整规则后可重新开始扫描。</source>
        <translation>結果已清除。切換索引標籤調整規則後，可重新開始掃描。</translation>
    </message>
    <message>
        <source>请选中同一组内的两个图片文件进行对比。</source>
        <translation>請選取同一群組中的兩個圖片檔案進行比較。</translation>
    </message>
    <message>
        <source>没有匹配的记录。</source>
        <translation>沒有符合的記錄。</translation>
    </message>
    <message>
        <source>没有匹配的文件。</source>
        <translation>沒有符合的檔案。</translation>
    </message>
    <message>
        <source>还没有扫描位置。
点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。</source>
        <translation>尚無掃描位置。
請按「+ 資料夾」、在左側選擇，或將資料夾拖放、貼上到這裡。</translation>
    </message>
    <message>
        <source>扫描后在这里显示结果。</source>
        <translation>掃描後會在這裡顯示結果。</translation>
    </message>
    <message>
        <source>没有找到重复文件。</source>
        <translation>沒有找到重複的檔案。</translation>
    </message>
    <message>
        <source>没有找到重复文件夹。</source>
        <translation>沒有找到重複的資料夾。</translation>
    </message>
    <message>
        <source>没有列出其余文件。
要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。</source>
        <translation>沒有列出其餘檔案。
若要檢視，請在掃描位置開啟「顯示其餘檔案」，然後重新掃描。</translation>
    </message>
    <message>
        <source>筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。</source>
        <translation>篩選只改變清單中顯示的內容，勾選與批次操作仍針對全部結果。</translation>
    </message>
</context>
</TS>
